#include "Fc/Resource/Geometry/FcGradientCurve.h"

#include "Fc/Model/Nesting.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/CurveTrimming.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Shapes/GradientPath.h"

namespace qor::fc::resource::geometry {

using math::Point2d;
using math::Point3d;

namespace {

/// The length of the curve itself where its segments tell it, else that of its points.
double lengthOf(const FcBoundedCurve& curve, const std::vector<Point3d>& points) {
  double chords = 0, exact = 0;
  for (std::size_t i = 1; i < points.size(); ++i) chords += points[i].distance(points[i - 1]);
  const auto* composite = fcCast<FcCompositeCurve>(static_cast<const FcBase*>(&curve));
  if (!composite) return chords;
  for (const auto& each : composite->Segments()) {
    const auto segment = fcCast<FcCurveSegment>(each);
    const auto length = segment ? segment->length() : std::nullopt;
    if (!length) return chords;
    exact += *length;
  }
  return exact;
}

}  // namespace

bool FcGradientCurve::is2d() const { return false; }

bool FcGradientCurve::isClosed(const FcParams& /*params*/) const { return false; }

std::vector<Point3d> FcGradientCurve::curveGet(const FcParams& params, const Trim& trim1,
                                               const Trim& trim2, bool reverse) const {
  if (!expectWhole(trim1, trim2, reverse, "FcCompositeCurve::curveGet")) return {};
  const auto heights = FcCompositeCurve::curveGet(params, {}, {}, false);
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting ||
      !requireThat(*this, BaseCurve() != nullptr, "FcGradientCurve::BaseCurve is required"))
    return {};
  const auto path = BaseCurve()->curveGet(params, {}, {}, false);
  return gradientPath(path, lengthOf(*BaseCurve(), path), heights);
}

std::optional<std::vector<Point2d>> FcGradientCurve::curve2d(const FcParams& params,
                                                             const Trim& trim1, const Trim& trim2,
                                                             bool reverse) const {
  const Nesting nesting(Nesting::Kind::curve, *this);
  if (!nesting ||
      !requireThat(*this, BaseCurve() != nullptr, "FcGradientCurve::BaseCurve is required"))
    return {};
  return BaseCurve()->curve2d(params, trim1, trim2, reverse);
}

}  // namespace qor::fc::resource::geometry
