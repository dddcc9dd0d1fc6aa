#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Shapes/DirectrixSweep.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::Profile2D;
using math::Vector3d;

namespace {

bool isPositive(double radius) {
  return std::isfinite(radius) && radius > math::Epsilon::current().length;
}

Profile2D section(double radius, std::optional<double> innerRadius,
                  const math::CurveDiscretization& discretization) {
  std::vector<Profile2D::Contour> rings{
      discretization.discretizeCircle(math::Point2d(), radius, 0)};
  if (innerRadius) {
    rings.push_back(discretization.discretizeCircle(math::Point2d(), *innerRadius, 0));
    std::reverse(rings.back().begin(), rings.back().end());
  }
  return Profile2D(std::move(rings), true);
}

}  // namespace

bool FcSweptDiskSolid::isReadyToDraw() const {
  return requireThat(*this, Directrix() != nullptr, "FcSweptDiskSolid need Directrix") &&
         requireThat(*this, isPositive(Radius()), "FcSweptDiskSolid should have positive Radius") &&
         requireThat(
             *this, !InnerRadius() || isPositive(*InnerRadius()),
             "FcSweptDiskSolid should have positive InnerRadius or no inner radius at all") &&
         requireThat(*this, !InnerRadius() || isPositive(Radius() - *InnerRadius()),
                     "FcSweptDiskSolid InnerRadius should be less than Radius");
}

void FcSweptDiskSolid::draw(const FcDrawParams& params) const {
  if (!isReadyToDraw()) return;
  const FcParams evaluation(params);
  const Profile2D disk =
      section(Radius(), InnerRadius() ? std::optional<double>(*InnerRadius()) : std::nullopt,
              evaluation.curveDiscretization());
  const bool closed = Directrix()->isClosed(evaluation);
  if (auto set = sweptAlongPath(disk, getSweptDiskCurve(evaluation), {0, 0, 1}, {}, closed))
    params->polygonalFaceSet(std::move(*set));
}

void FcSweptDiskSolid::transform(const math::Matrix& matrix) {
  if (Directrix()) Directrix()->transform(matrix);
}

std::optional<math::Extent> FcSweptDiskSolid::boundingBox(const FcParams& params) const {
  if (!isReadyToDraw()) return std::nullopt;
  const auto box = math::Extent::ofPoints(Directrix()->curveGet(params, {}, {}, false));
  if (!box.isValid()) return std::nullopt;
  const Vector3d reach{Radius(), Radius(), Radius()};
  return math::Extent(box.minimum() - reach, box.maximum() + reach);
}

std::vector<math::Point3d> FcSweptDiskSolid::getSweptDiskCurve(const FcParams& params) const {
  return Directrix() ? Directrix()->curveGet(params, {}, {}, false) : std::vector<math::Point3d>();
}

}  // namespace qor::fc::resource::geometricmodel
