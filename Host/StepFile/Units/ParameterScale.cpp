#include "Host/StepFile/Units/ParameterScale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "Fc/Resource/GeometricModel/FcCartesianPointList.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList2D.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcBSplineCurveWithKnots.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcClothoid.h"
#include "Fc/Resource/Geometry/FcCompositeCurveSegment.h"
#include "Fc/Resource/Geometry/FcConic.h"
#include "Fc/Resource/Geometry/FcCurveBoundedPlane.h"
#include "Fc/Resource/Geometry/FcCurveBoundedSurface.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Resource/Geometry/FcCylindricalSurface.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcIndexedPolyCurve.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcOffsetCurve.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcRectangularTrimmedSurface.h"
#include "Fc/Resource/Geometry/FcReparametrisedCompositeCurveSegment.h"
#include "Fc/Resource/Geometry/FcSphericalSurface.h"
#include "Fc/Resource/Geometry/FcSpiral.h"
#include "Fc/Resource/Geometry/FcSurfaceCurve.h"
#include "Fc/Resource/Geometry/FcSurfaceOfLinearExtrusion.h"
#include "Fc/Resource/Geometry/FcSurfaceOfRevolution.h"
#include "Fc/Resource/Geometry/FcToroidalSurface.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Fc/Resource/Profile/FcArbitraryOpenProfileDef.h"

namespace qor::host::step {

using namespace fc::resource::geometry;
using namespace fc::resource::geometricmodel;
using fc::resource::profile::FcArbitraryOpenProfileDef;

namespace {

using Triple = std::array<double, 3>;

Triple operator-(const Triple& a, const Triple& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
double dot(const Triple& a, const Triple& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Triple cross(const Triple& a, const Triple& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double length(const Triple& a) { return std::sqrt(dot(a, a)); }

Triple tripleOf(const FcCartesianPoint& point) {
  const auto& c = point.Coordinates();
  return {c[0].value(), c[1].value(), c[2].value()};
}

const FcCartesianPoint* pointOf(const std::vector<FcTrimmingSelect>& trims) {
  for (const FcTrimmingSelect& trim : trims)
    if (trim.type() == FcTrimmingSelect::Types::CartesianPoint) return trim.CartesianPoint().get();
  return nullptr;
}

std::optional<double> parameterOf(const std::vector<FcTrimmingSelect>& trims) {
  for (const FcTrimmingSelect& trim : trims)
    if (trim.type() == FcTrimmingSelect::Types::ParameterValue)
      return trim.ParameterValue().value();
  return std::nullopt;
}

struct Centre {
  Triple point;
  Triple axis;
};

std::optional<Centre> centreOf(const FcCircle& circle) {
  const fc::FcBase* position = circle.Position().getEntity();
  if (const auto* flat = fc::fcCast<FcAxis2Placement2D>(position)) {
    const auto* point = fc::fcCast<FcCartesianPoint>(flat->Location().get());
    return point ? std::optional(Centre{tripleOf(*point), {0, 0, 1}}) : std::nullopt;
  }
  const auto* spatial = fc::fcCast<FcAxis2Placement3D>(position);
  const auto* point = spatial ? fc::fcCast<FcCartesianPoint>(spatial->Location().get()) : nullptr;
  if (!point) return std::nullopt;
  Triple axis{0, 0, 1};
  if (spatial->Axis()) {
    const auto& ratios = spatial->Axis()->DirectionRatios();
    axis = {ratios[0].value(), ratios[1].value(), ratios[2].value()};
  }
  return Centre{tripleOf(*point), axis};
}

/// From the first point to the second one about the axis, 0 to a full turn, in radians.
double angleBetween(const Centre& centre, const Triple& from, const Triple& to) {
  const Triple a = from - centre.point;
  const Triple b = to - centre.point;
  const Triple normal = cross(a, b);
  const double angle =
      std::atan2(dot(normal, centre.axis) < 0 ? -length(normal) : length(normal), dot(a, b));
  return angle < 0 ? angle + 2 * std::numbers::pi : angle;
}

std::size_t countPoints(const FcCartesianPointList* points) {
  if (const auto* flat = fc::fcCast<FcCartesianPointList2D>(points))
    return flat->CoordList().size();
  const auto* spatial = fc::fcCast<FcCartesianPointList3D>(points);
  return spatial ? spatial->CoordList().size() : 0;
}

double lessOne(std::size_t count) { return count == 0 ? 0 : static_cast<double>(count - 1); }

/// The curve that gives this one its parameters; null for one with its own.
const FcCurve* basisOf(const FcCurve* curve) {
  if (const auto* trimmed = fc::fcCast<FcTrimmedCurve>(curve)) return trimmed->BasisCurve().get();
  if (const auto* offset = fc::fcCast<FcOffsetCurve>(curve)) return offset->BasisCurve().get();
  const auto* onSurface = fc::fcCast<FcSurfaceCurve>(curve);
  return onSurface ? onSurface->Curve3D().get() : nullptr;
}

const FcSurface* basisOf(const FcSurface* surface) {
  if (const auto* trimmed = fc::fcCast<FcRectangularTrimmedSurface>(surface))
    return trimmed->BasisSurface().get();
  if (const auto* plane = fc::fcCast<FcCurveBoundedPlane>(surface))
    return plane->BasisSurface().get();
  const auto* bounded = fc::fcCast<FcCurveBoundedSurface>(surface);
  return bounded ? bounded->BasisSurface().get() : nullptr;
}

const FcCurve* sweptCurveOf(const FcSweptSurface& surface) {
  const auto* profile = fc::fcCast<FcArbitraryOpenProfileDef>(surface.SweptCurve().get());
  return profile ? profile->Curve().get() : nullptr;
}

}  // namespace

UnitConversion ParameterScale::of(const FcCurve* curve) const {
  for (int depth = 0; curve && depth < maxDepth; ++depth) {
    if (fc::fcCast<FcConic>(curve)) return m_angle;
    if (fc::fcCast<FcSpiral>(curve))
      return fc::fcCast<FcClothoid>(curve) ? UnitConversion() : m_length;
    curve = basisOf(curve);
  }
  return {};
}

std::pair<UnitConversion, UnitConversion> ParameterScale::of(const FcSurface* surface) const {
  for (int depth = 0; surface && depth < maxDepth; ++depth) {
    if (fc::fcCast<FcPlane>(surface)) return {m_length, m_length};
    if (fc::fcCast<FcCylindricalSurface>(surface)) return {m_angle, m_length};
    if (fc::fcCast<FcSphericalSurface>(surface) || fc::fcCast<FcToroidalSurface>(surface))
      return {m_angle, m_angle};
    if (const auto* turned = fc::fcCast<FcSurfaceOfRevolution>(surface))
      return {m_angle, of(sweptCurveOf(*turned))};
    if (const auto* extruded = fc::fcCast<FcSurfaceOfLinearExtrusion>(surface))
      return {of(sweptCurveOf(*extruded)), {}};
    surface = basisOf(surface);
  }
  return {};
}

std::optional<double> ParameterScale::convert(const FcCurve* curve, double parameter) const {
  return convert(curve, parameter, 0);
}

std::optional<double> ParameterScale::convert(const FcCurve* curve, double parameter,
                                              int depth) const {
  const auto* composite = fc::fcCast<FcCompositeCurve>(curve);
  if (!composite) return of(curve)(parameter);
  if (depth > maxDepth) return std::nullopt;
  double rest = parameter;
  double result = 0;
  const auto& segments = composite->Segments();
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const auto segment = piece(segments[i].get(), depth + 1);
    if (!segment) return std::nullopt;
    // What lies before the first or behind the last segment goes on as that does.
    const bool ends = rest <= segment->range || i + 1 == segments.size();
    const double local = ends ? rest : segment->range;
    const auto converted = fc::fcCast<FcCompositeCurve>(segment->curve)
                               ? convert(segment->curve, local, depth + 1)
                               : std::optional(segment->conversion(local));
    if (!converted) return std::nullopt;
    result += *converted;
    if (ends) break;
    rest -= segment->range;
  }
  return result;
}

std::optional<ParameterScale::Piece> ParameterScale::piece(const fc::FcBase* segment,
                                                           int depth) const {
  if (const auto* own = fc::fcCast<FcReparametrisedCompositeCurveSegment>(segment))
    return Piece{own->ParamLength().value(), {}, nullptr};
  if (const auto* part = fc::fcCast<FcCompositeCurveSegment>(segment)) {
    const FcCurve* parent = part->ParentCurve().get();
    const auto run = range(parent, depth);
    return run ? std::optional(Piece{*run, of(parent), parent}) : std::nullopt;
  }
  const auto* cut = fc::fcCast<FcCurveSegment>(segment);
  if (!cut) return std::nullopt;
  const FcCurveMeasureSelect& size = cut->SegmentLength();
  if (size.type() == FcCurveMeasureSelect::Types::LengthMeasure)
    return Piece{m_length.inverse(std::abs(size.LengthMeasure().value())), m_length, nullptr};
  if (size.type() == FcCurveMeasureSelect::Types::ParameterValue)
    return Piece{std::abs(size.ParameterValue().value()), of(cut->ParentCurve().get()), nullptr};
  return std::nullopt;
}

std::optional<double> ParameterScale::range(const FcCurve* curve, int depth) const {
  if (const auto* composite = fc::fcCast<FcCompositeCurve>(curve)) {
    if (depth > maxDepth) return std::nullopt;
    double sum = 0;
    for (const auto& segment : composite->Segments()) {
      const auto part = piece(segment.get(), depth + 1);
      if (!part) return std::nullopt;
      sum += part->range;
    }
    return sum;
  }
  if (const auto* trimmed = fc::fcCast<FcTrimmedCurve>(curve)) return rangeOfTrims(*trimmed);
  if (const auto* line = fc::fcCast<FcPolyline>(curve)) return lessOne(line->Points().size());
  if (const auto* indexed = fc::fcCast<FcIndexedPolyCurve>(curve))
    return indexed->Segments() ? static_cast<double>(indexed->Segments()->size())
                               : lessOne(countPoints(indexed->Points().get()));
  if (const auto* spline = fc::fcCast<FcBSplineCurveWithKnots>(curve))
    return spline->Knots().empty()
               ? std::nullopt
               : std::optional(spline->Knots().back().value() - spline->Knots().front().value());
  if (fc::fcCast<FcConic>(curve)) return m_angle.inverse(2 * std::numbers::pi);
  return std::nullopt;
}

std::optional<double> ParameterScale::rangeOfTrims(const FcTrimmedCurve& curve) const {
  const FcCurve* basis = curve.BasisCurve().get();
  const auto from = parameterOf(curve.Trim1());
  const auto to = parameterOf(curve.Trim2());
  if (from && to) {
    const double run = curve.SenseAgreement() ? *to - *from : *from - *to;
    if (!fc::fcCast<FcConic>(basis)) return std::abs(run);
    const double turn = m_angle.inverse(2 * std::numbers::pi);
    return run - turn * (std::ceil(run / turn) - 1);  // above 0, up to a full turn
  }
  const FcCartesianPoint* begin = pointOf(curve.Trim1());
  const FcCartesianPoint* end = pointOf(curve.Trim2());
  if (!begin || !end) return std::nullopt;
  if (const auto* circle = fc::fcCast<FcCircle>(basis)) {
    const auto centre = centreOf(*circle);
    if (!centre) return std::nullopt;
    if (!curve.SenseAgreement()) std::swap(begin, end);
    return m_angle.inverse(angleBetween(*centre, tripleOf(*begin), tripleOf(*end)));
  }
  const auto* line = fc::fcCast<FcLine>(basis);
  const double magnitude = line && line->Dir() ? line->Dir()->Magnitude().value() : 0;
  if (!(magnitude > 0)) return std::nullopt;
  return length(tripleOf(*end) - tripleOf(*begin)) / magnitude;
}

}  // namespace qor::host::step
