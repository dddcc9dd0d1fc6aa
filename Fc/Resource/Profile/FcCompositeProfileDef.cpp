#include "Fc/Resource/Profile/FcCompositeProfileDef.h"

#include <iterator>
#include <utility>

#include "Fc/Model/Nesting.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<Profile2D> FcCompositeProfileDef::closedProfile(const FcParams& params) const {
  std::vector<Profile2D> result;
  const Nesting nesting(Nesting::Kind::profile, *this);
  if (!nesting) return result;
  for (const auto& member : Profiles()) {
    if (!member) continue;
    std::vector<Profile2D> areas = member->closedProfile(params);
    result.insert(result.end(), std::make_move_iterator(areas.begin()),
                  std::make_move_iterator(areas.end()));
  }
  return result;
}

void FcCompositeProfileDef::transform2d(const math::Matrix2d& matrix) {
  const Nesting nesting(Nesting::Kind::profile, *this);
  if (!nesting) return;
  for (const auto& member : Profiles())
    if (member) member->transform2d(matrix);
}

std::optional<math::Extent2d> FcCompositeProfileDef::doGetPlanarBox(const FcParams& params) const {
  const Nesting nesting(Nesting::Kind::profile, *this);
  if (!nesting) return std::nullopt;
  math::Extent2d box;
  for (const auto& member : Profiles()) {
    if (!member) continue;
    if (const auto memberBox = member->planarBox(params)) box = box.uniteWith(*memberBox);
  }
  return box.isValid() ? std::optional(box) : std::nullopt;
}

}  // namespace qor::fc::resource::profile
