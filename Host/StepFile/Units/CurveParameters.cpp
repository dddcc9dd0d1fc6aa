#include "Host/StepFile/Units/CurveParameters.h"

#include <utility>

#include "Fc/Resource/GeometricModel/FcSweptDiskSolid.h"
#include "Fc/Resource/Geometry/FcCurveSegment.h"
#include "Fc/Resource/Geometry/FcDirectrixCurveSweptAreaSolid.h"
#include "Fc/Resource/Geometry/FcPointByDistanceExpression.h"
#include "Fc/Resource/Geometry/FcPointOnCurve.h"
#include "Fc/Resource/Geometry/FcPointOnSurface.h"
#include "Fc/Resource/Geometry/FcRectangularTrimmedSurface.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"

namespace qor::host::step {

using namespace fc::resource::geometry;
using namespace fc::resource::geometricmodel;
using fc::resource::measure::FcParameterValue;

CurveParameters::CurveParameters(ParameterScale scale, UnitReport report)
    : m_scale(scale), m_report(std::move(report)) {}

double CurveParameters::converted(double parameter, const std::shared_ptr<FcCurve>& curve,
                                  const fc::FcBase& owner) const {
  const auto result = m_scale.convert(curve.get(), parameter);
  if (result) return *result;
  m_report(owner, "",
           "has a parameter on a composite curve with a segment whose parameters can't be counted; "
           "the number is left as it is.");
  return parameter;
}

FcCurveMeasureSelect CurveParameters::converted(const FcCurveMeasureSelect& select,
                                                const std::shared_ptr<FcCurve>& curve,
                                                const fc::FcBase& owner) const {
  if (select.type() != FcCurveMeasureSelect::Types::ParameterValue) return select;
  return FcParameterValue(converted(select.ParameterValue().value(), curve, owner));
}

template <>
void CurveParameters::convertOne(FcSweptDiskSolid& solid) const {
  const auto convert = [&](const std::optional<FcParameterValue>& value) {
    return value ? std::optional(
                       FcParameterValue(converted(value->value(), solid.Directrix(), solid)))
                 : std::nullopt;
  };
  solid.setStartParam(convert(solid.StartParam()));
  solid.setEndParam(convert(solid.EndParam()));
}

template <>
void CurveParameters::convertOne(FcDirectrixCurveSweptAreaSolid& solid) const {
  solid.setStartParam(converted(solid.StartParam(), solid.Directrix(), solid));
  solid.setEndParam(converted(solid.EndParam(), solid.Directrix(), solid));
}

template <>
void CurveParameters::convertOne(FcPointOnCurve& point) const {
  point.setPointParameter(
      FcParameterValue(converted(point.PointParameter().value(), point.BasisCurve(), point)));
}

template <>
void CurveParameters::convertOne(FcPointByDistanceExpression& point) const {
  point.setDistanceAlong(converted(point.DistanceAlong(), point.BasisCurve(), point));
}

template <>
void CurveParameters::convertOne(FcPointOnSurface& point) const {
  const auto [u, v] = m_scale.of(point.BasisSurface().get());
  point.setPointParameterU(FcParameterValue(u(point.PointParameterU().value())));
  point.setPointParameterV(FcParameterValue(v(point.PointParameterV().value())));
}

template <>
void CurveParameters::convertOne(FcRectangularTrimmedSurface& surface) const {
  const auto [u, v] = m_scale.of(surface.BasisSurface().get());
  surface.setU1(FcParameterValue(u(surface.U1().value())));
  surface.setU2(FcParameterValue(u(surface.U2().value())));
  surface.setV1(FcParameterValue(v(surface.V1().value())));
  surface.setV2(FcParameterValue(v(surface.V2().value())));
}

template <>
void CurveParameters::convertOne(FcCurveSegment& segment) const {
  segment.setSegmentStart(converted(segment.SegmentStart(), segment.ParentCurve(), segment));
  segment.setSegmentLength(converted(segment.SegmentLength(), segment.ParentCurve(), segment));
}

template <>
void CurveParameters::convertOne(FcTrimmedCurve& curve) const {
  const UnitConversion conversion = m_scale.of(curve.BasisCurve().get());
  if (conversion.isIdentity()) return;
  const auto convert = [&](std::vector<FcTrimmingSelect> trims) {
    for (FcTrimmingSelect& trim : trims)
      if (trim.type() == FcTrimmingSelect::Types::ParameterValue)
        trim = FcTrimmingSelect(FcParameterValue(conversion(trim.ParameterValue().value())));
    return trims;
  };
  curve.setTrim1(convert(curve.Trim1()));
  curve.setTrim2(convert(curve.Trim2()));
}

template <class T>
bool CurveParameters::convertAs(fc::FcBase& entity) const {
  T* typed = fc::fcCast<T>(&entity);
  if (typed) convertOne(*typed);
  return typed != nullptr;
}

void CurveParameters::convert(const std::vector<std::shared_ptr<fc::FcBase>>& entities) const {
  for (const auto& entity : entities)
    convertAs<FcSweptDiskSolid>(*entity) || convertAs<FcDirectrixCurveSweptAreaSolid>(*entity) ||
        convertAs<FcPointOnCurve>(*entity) || convertAs<FcPointByDistanceExpression>(*entity) ||
        convertAs<FcPointOnSurface>(*entity) || convertAs<FcRectangularTrimmedSurface>(*entity);
  // What the ones before have looked at.
  for (const auto& entity : entities)
    convertAs<FcTrimmedCurve>(*entity) || convertAs<FcCurveSegment>(*entity);
}

}  // namespace qor::host::step
