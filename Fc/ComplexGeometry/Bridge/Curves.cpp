// The curves of the model for the solid modeller.

#include <GC_MakeLine.hxx>
#include <GeomLib_Tool.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_Circle.hxx>
#include <Geom_Line.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "Fc/ComplexGeometry/Bridge/BSplineArrays.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/ocMemoizer.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/NotImplemented.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcRationalBSplineCurveWithKnots.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::resource::geometry {
namespace {

using CurveHandle = opencascade::handle<Geom_Curve>;

OcCurve curveOf(const CurveHandle& curve) { return std::make_shared<CurveHandle>(curve); }

/// Degree 1 through the poles, one knot for each.
Geom_Curve* polygonCurve(const TColgp_Array1OfPnt& poles) {
  TColStd_Array1OfReal knots(1, poles.Length());
  TColStd_Array1OfInteger multiplicities(1, poles.Length());
  for (int i = 1; i <= poles.Length(); ++i) {
    knots(i) = i - 1;
    multiplicities(i) = i == 1 || i == poles.Length() ? 2 : 1;
  }
  return new Geom_BSplineCurve(poles, knots, multiplicities, 1);
}

// The parameter of one end on the basis. The trims give it as a point, a number or both.
std::optional<double> trimParameter(const std::vector<FcTrimmingSelect>& trims, bool preferPoint,
                                    const CurveHandle& basis, double parameterLength) {
  using Types = FcTrimmingSelect::Types;
  const FcTrimmingSelect* found = nullptr;
  for (const FcTrimmingSelect& trim : trims) {
    if (!trim.isSet()) continue;
    if (!found || (trim.type() == Types::CartesianPoint) == preferPoint) found = &trim;
  }
  if (!found) return {};
  if (found->type() == Types::ParameterValue)
    return parameterLength * static_cast<double>(found->ParameterValue());
  double parameter = 0;
  if (!found->CartesianPoint() ||
      !GeomLib_Tool::Parameter(basis, bspline::pole(found->CartesianPoint()),
                               math::Epsilon::current().length, parameter))
    return {};
  return parameter;
}

// How much of the solid modeller's parameter one unit of the model's is: a line counts in lengths
// of its vector, the modeller in metres.
double parameterLength(const FcCurve& basis) {
  const auto* line = fcCast<FcLine>(&basis);
  return line && line->Dir() ? static_cast<double>(line->Dir()->Magnitude()) : 1;
}

}  // namespace

OcCurve FcCurve::ocCurve(ocMemoizer& /*memoizer*/) const {
  assertNotImplemented("ocCurve() not implemented for class: ", *this,
                       "resource::geometry::FcCurve::ocCurve");
  return {};
}

TopoDS_Wire FcCurve::ocDiscretizedCurve(const FcParams& params) const {
  const std::vector<math::Point3d> points = curveGet(params, {}, {}, false);
  if (points.size() >= 2) return getClosedWireFromPoints(points);
  report("Assertion failed: need at least 2 points.",
         "qor::fc::resource::geometry::FcCurve::ocDiscretizedCurve", __LINE__);
  return {};
}

std::vector<TopoDS_Shape> FcCurve::ocRepresentation(const FcParams& params) const {
  const TopoDS_Wire wire = ocDiscretizedCurve(params);
  if (wire.IsNull()) return {};
  return {wire};
}

OcCurve FcLine::ocCurve(ocMemoizer& /*memoizer*/) const {
  if (!Pnt() || !Dir() || !Dir()->Orientation()) {
    report("Missing Pnt or Dir on FcLine", "qor::fc::resource::geometry::FcLine::ocCurve",
           __LINE__);
    return {};
  }
  const auto& ratios = Dir()->Orientation()->DirectionRatios();
  return guarded<OcCurve>("Could not create OpenCascade line.", [&] {
    return curveOf(
        GC_MakeLine(bspline::pole(Pnt()), gp_Dir(ratios[0], ratios[1], ratios[2])).Value());
  });
}

OcCurve FcCircle::ocCurve(ocMemoizer& /*memoizer*/) const {
  const math::Matrix placement = Position().transformationGet();
  if (placement.isMirror()) {
    throw std::invalid_argument(
        "incoming placement is mirror: Open Cascade gp_Ax2 does not allow for mirroring");
  }
  return guarded<OcCurve>("Could not create OpenCascade circle.", [&] {
    return curveOf(new Geom_Circle(toOpenCascadeFrame(placement).Ax2(), Radius()));
  });
}

OcCurve FcPolyline::ocCurve(ocMemoizer& /*memoizer*/) const {
  const char* const function = "qor::fc::resource::geometry::FcPolyline::ocCurve";
  if (Points().size() < 2) {
    report("FcPolyline should have more than one point", function, __LINE__);
    return {};
  }
  for (const auto& point : Points()) {
    if (point) continue;
    report("FcPolyline::Points had a nullptr", function, __LINE__);
    return {};
  }
  return guarded<OcCurve>("Could not create OpenCascade polyline.", [&] {
    if (Points().size() > 2) return curveOf(polygonCurve(bspline::poles(Points())));
    return curveOf(GC_MakeLine(bspline::pole(Points()[0]), bspline::pole(Points()[1])).Value());
  });
}

OcCurve FcBSplineCurveWithKnots::ocCurve(ocMemoizer& /*memoizer*/) const {
  return guardedBSpline<OcCurve>("Could not create OpenCascade bspline curve.", [&] {
    return curveOf(new Geom_BSplineCurve(
        bspline::poles(ControlPointsList()), bspline::numbers<TColStd_Array1OfReal>(Knots()),
        bspline::numbers<TColStd_Array1OfInteger>(KnotMultiplicities()),
        static_cast<int>(Degree())));
  });
}

OcCurve FcRationalBSplineCurveWithKnots::ocCurve(ocMemoizer& /*memoizer*/) const {
  return guardedBSpline<OcCurve>("Could not create OpenCascade rational bspline curve.", [&] {
    return curveOf(new Geom_BSplineCurve(
        bspline::poles(ControlPointsList()), bspline::numbers<TColStd_Array1OfReal>(WeightsData()),
        bspline::numbers<TColStd_Array1OfReal>(Knots()),
        bspline::numbers<TColStd_Array1OfInteger>(KnotMultiplicities()),
        static_cast<int>(Degree())));
  });
}

OcCurve FcTrimmedCurve::ocCurve(ocMemoizer& memoizer) const {
  const char* const function = "qor::fc::resource::geometry::FcTrimmedCurve::ocCurve";
  if (!BasisCurve()) {
    report("FcTrimmedCurve::BasisCurve missing.", function, __LINE__);
    return {};
  }
  const OcCurve basis = memoizer.getCurve(*BasisCurve());
  if (!basis) return {};
  return guarded<OcCurve>("Could not create OpenCascade trimmed curve.", [&]() -> OcCurve {
    const bool preferPoint = MasterRepresentation() == FcTrimmingPreference::CARTESIAN;
    const double unit = parameterLength(*BasisCurve());
    const auto first = trimParameter(Trim1(), preferPoint, *basis, unit);
    const auto second = trimParameter(Trim2(), preferPoint, *basis, unit);
    if (!first || !second) {
      report("A trim of FcTrimmedCurve is missing or not on its BasisCurve", function, __LINE__);
      return {};
    }
    if (std::abs(*first - *second) <= math::Epsilon::current().general) {
      report("Cannot use equal parameters", function, __LINE__);
      return {};
    }
    return curveOf(new Geom_TrimmedCurve(*basis, *first, *second, SenseAgreement(), true));
  });
}

}  // namespace qor::fc::resource::geometry
