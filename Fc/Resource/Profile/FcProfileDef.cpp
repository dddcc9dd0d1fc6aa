#include "Fc/Resource/Profile/FcProfileDef.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "Fc/Model/NotImplemented.h"
#include "Qor/Draw/PolygonOrientation.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;
using math::Extent2d;

namespace {

bool isFinite(const Profile2D& profile) {
  for (const auto& contour : profile.contours())
    for (const auto& point : contour)
      if (!point.isFinite()) return false;
  return true;
}

void orient(Profile2D::Contour& contour, bool counterClockwise) {
  if (generate::draw::isCounterClockwisePolygon(contour) != counterClockwise)
    std::reverse(contour.begin(), contour.end());
}

}  // namespace

std::vector<std::shared_ptr<geometry::FcIndexedPolyCurve>> FcProfileDef::getAsIndexedPolyCurves()
    const {
  assertNotImplemented("FcProfileDef::getAsIndexedPolyCurves not implemented for class: ", *this);
  return {};
}

std::vector<Profile2D> FcProfileDef::closedProfile(const FcParams& /*params*/) const {
  assertNotImplemented(
      "FcProfileDef::closedProfile(const qor::fc::FcParams&) not implemented for class: ", *this);
  return {};
}

std::vector<Profile2D> FcProfileDef::reversedClosedProfile(const FcParams& params) const {
  std::vector<Profile2D> profiles = closedProfile(params);
  for (Profile2D& profile : profiles) {
    for (auto& contour : profile.contours()) std::reverse(contour.begin(), contour.end());
    if (const auto* flags = std::get_if<Profile2D::EdgeFlags>(&profile.softEdges())) {
      Profile2D::EdgeFlags turned = *flags;
      for (auto& contour : turned) std::reverse(contour.begin(), contour.end());
      profile = Profile2D(std::move(profile.contours()), std::move(turned));
    }
  }
  return profiles;
}

void FcProfileDef::transform2d(const math::Matrix2d& /*matrix*/) {
  assertNotImplemented(
      "FcProfileDef::transform2d(const qor::math::_2d::Matrix&) not implemented for class: ",
      *this);
}

std::optional<Extent2d> FcProfileDef::doGetPlanarBox(const FcParams& params) const {
  assertNotImplemented("doGetPlanarBox(const qor::fc::FcParams&) not implemented for class: ",
                       *this);
  Extent2d box;
  for (const Profile2D& profile : closedProfile(params))
    for (const auto& contour : profile.contours()) box = box.uniteWith(Extent2d::ofPoints(contour));
  return box.isValid() ? std::optional(box) : std::nullopt;
}

std::vector<Profile2D> FcProfileDef::closedProfileWithEnforcedOrientation(
    const FcParams& params, bool counterClockwise) const {
  std::vector<Profile2D> profiles = closedProfile(params);
  profiles.erase(std::remove_if(profiles.begin(), profiles.end(),
                                [](const Profile2D& profile) { return !isFinite(profile); }),
                 profiles.end());
  for (Profile2D& profile : profiles) {
    auto& contours = profile.contours();
    for (std::size_t i = 0; i < contours.size(); ++i)
      orient(contours[i], counterClockwise == (i == 0));
  }
  return profiles;
}

}  // namespace qor::fc::resource::profile
