#include "Fc/Resource/Profile/FcDerivedProfileDef.h"

#include "Fc/FcParams.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2D.h"

namespace qor::fc::resource::profile {

using generate::draw::Profile2D;

std::vector<Profile2D> FcDerivedProfileDef::closedProfile(const FcParams& params) const {
  const Nesting nesting(Nesting::Kind::profile, *this);
  if (!nesting || !ParentProfile()) return {};
  std::vector<Profile2D> result = ParentProfile()->closedProfile(params);
  const auto matrix = operatorMatrix();
  if (!matrix) return result;
  for (Profile2D& profile : result)
    for (auto& contour : profile.contours())
      for (math::Point2d& point : contour) point = point * *matrix;
  return result;
}

std::optional<math::Matrix2d> FcDerivedProfileDef::operatorMatrix() const {
  if (!Operator()) return std::nullopt;
  return Operator()->getTransformation2d();
}

}  // namespace qor::fc::resource::profile
