// The curves of the model for the solid modeller.

#include <GC_MakeLine.hxx>
#include <GeomLib_Tool.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_Circle.hxx>
#include <Geom_Ellipse.hxx>
#include <Geom_Line.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Wire.hxx>
#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "Fc/ComplexGeometry/Bridge/BSplineArrays.h"
#include "Fc/ComplexGeometry/Bridge/FormOfClass.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCircle.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcEllipse.h"
#include "Fc/Resource/Geometry/FcLine.h"
#include "Fc/Resource/Geometry/FcPolyline.h"
#include "Fc/Resource/Geometry/FcRationalBSplineCurveWithKnots.h"
#include "Fc/Resource/Geometry/FcTrimmedCurve.h"
#include "Fc/Resource/Geometry/FcVector.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc {
namespace resource::geometry {
namespace {

using CurveHandle = opencascade::handle<Geom_Curve>;

OcCurve curveHandle(const CurveHandle& curve) { return std::make_shared<CurveHandle>(curve); }

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

OcCurve curveOf(const FcLine& line) {
  if (!line.Pnt() || !line.Dir() || !line.Dir()->Orientation()) {
    report("Missing Pnt or Dir on FcLine");
    return {};
  }
  const auto& ratios = line.Dir()->Orientation()->DirectionRatios();
  return guarded<OcCurve>("Could not create OpenCascade line.", [&] {
    return curveHandle(
        GC_MakeLine(bspline::pole(line.Pnt()), gp_Dir(ratios[0], ratios[1], ratios[2])).Value());
  });
}

// Throws `std::invalid_argument` for a placement that mirrors.
OcCurve curveOf(const FcCircle& circle) {
  const math::Matrix placement = circle.Position().transformationGet();
  if (placement.isMirror()) {
    throw std::invalid_argument(
        "incoming placement is mirror: Open Cascade gp_Ax2 does not allow for mirroring");
  }
  return guarded<OcCurve>("Could not create OpenCascade circle.", [&] {
    return curveHandle(new Geom_Circle(toOpenCascadeFrame(placement).Ax2(), circle.Radius()));
  });
}

// The modeller wants the longer axis first: an ellipse that has it second is turned by a quarter,
// and so are its parameters. The edges of faces are bounded by points.
OcCurve curveOf(const FcEllipse& ellipse) {
  const math::Matrix placement = ellipse.Position().transformationGet();
  if (placement.isMirror()) {
    report(ellipse, "The placement of an ellipse must not mirror");
    return {};
  }
  return guarded<OcCurve>("Could not create OpenCascade ellipse.", [&] {
    const double first = ellipse.SemiAxis1(), second = ellipse.SemiAxis2();
    gp_Ax2 frame = toOpenCascadeFrame(placement).Ax2();
    if (first < second) frame.SetXDirection(frame.YDirection());
    return curveHandle(new Geom_Ellipse(frame, std::max(first, second), std::min(first, second)));
  });
}

OcCurve curveOf(const FcPolyline& polyline) {
  if (polyline.Points().size() < 2) {
    report("FcPolyline should have more than one point");
    return {};
  }
  for (const auto& point : polyline.Points()) {
    if (point) continue;
    report("FcPolyline::Points had a nullptr");
    return {};
  }
  return guarded<OcCurve>("Could not create OpenCascade polyline.", [&] {
    if (polyline.Points().size() > 2)
      return curveHandle(polygonCurve(bspline::poles(polyline.Points())));
    return curveHandle(
        GC_MakeLine(bspline::pole(polyline.Points()[0]), bspline::pole(polyline.Points()[1]))
            .Value());
  });
}

OcCurve curveOf(const FcBSplineCurveWithKnots& spline) {
  return guardedBSpline<OcCurve>("Could not create OpenCascade bspline curve.", [&] {
    return curveHandle(new Geom_BSplineCurve(
        bspline::poles(spline.ControlPointsList()),
        bspline::numbers<TColStd_Array1OfReal>(spline.Knots()),
        bspline::numbers<TColStd_Array1OfInteger>(spline.KnotMultiplicities()),
        static_cast<int>(spline.Degree())));
  });
}

OcCurve curveOf(const FcRationalBSplineCurveWithKnots& spline) {
  return guardedBSpline<OcCurve>("Could not create OpenCascade rational bspline curve.", [&] {
    return curveHandle(new Geom_BSplineCurve(
        bspline::poles(spline.ControlPointsList()),
        bspline::numbers<TColStd_Array1OfReal>(spline.WeightsData()),
        bspline::numbers<TColStd_Array1OfReal>(spline.Knots()),
        bspline::numbers<TColStd_Array1OfInteger>(spline.KnotMultiplicities()),
        static_cast<int>(spline.Degree())));
  });
}

// Null for ends at one place, and for a trim point that isn't on the basis curve.
OcCurve curveOf(const FcTrimmedCurve& trimmed, ocMemoizer& memoizer) {
  if (!trimmed.BasisCurve()) {
    report("FcTrimmedCurve::BasisCurve missing.");
    return {};
  }
  const OcCurve basis = memoizer.getCurve(*trimmed.BasisCurve());
  if (!basis) return {};
  return guarded<OcCurve>("Could not create OpenCascade trimmed curve.", [&]() -> OcCurve {
    const bool preferPoint = trimmed.MasterRepresentation() == FcTrimmingPreference::CARTESIAN;
    const double unit = parameterLength(*trimmed.BasisCurve());
    const auto first = trimParameter(trimmed.Trim1(), preferPoint, *basis, unit);
    const auto second = trimParameter(trimmed.Trim2(), preferPoint, *basis, unit);
    if (!first || !second) {
      report("A trim of FcTrimmedCurve is missing or not on its BasisCurve");
      return {};
    }
    if (std::abs(*first - *second) <= math::Epsilon::current().general) {
      report("Cannot use equal parameters");
      return {};
    }
    return curveHandle(
        new Geom_TrimmedCurve(*basis, *first, *second, trimmed.SenseAgreement(), true));
  });
}

class CurveForm : public FormOfClass<OcCurve> {
 public:
  explicit CurveForm(ocMemoizer& memoizer) : m_memoizer(memoizer) {}

  using FormOfClass::visit;
  bool visit(const FcLine& curve) override { return give(curveOf(curve)); }
  bool visit(const FcCircle& curve) override { return give(curveOf(curve)); }
  bool visit(const FcEllipse& curve) override { return give(curveOf(curve)); }
  bool visit(const FcPolyline& curve) override { return give(curveOf(curve)); }
  bool visit(const FcBSplineCurveWithKnots& curve) override { return give(curveOf(curve)); }
  bool visit(const FcRationalBSplineCurveWithKnots& curve) override { return give(curveOf(curve)); }
  bool visit(const FcTrimmedCurve& curve) override { return give(curveOf(curve, m_memoizer)); }

 private:
  ocMemoizer& m_memoizer;
};

}  // namespace

TopoDS_Wire FcCurve::ocDiscretizedCurve(const FcParams& params) const {
  const std::vector<math::Point3d> points = curveGet(params, {}, {}, false);
  if (points.size() >= 2) return getClosedWireFromPoints(points);
  report(*this, "Assertion failed: need at least 2 points.");
  return {};
}

}  // namespace resource::geometry

OcCurve OpenCascadeModeller::curve(const resource::geometry::FcCurve& curve,
                                   ocMemoizer& memoizer) const {
  if (auto form = resource::geometry::CurveForm(memoizer).of(curve)) return *std::move(form);
  assertNotImplemented("ocCurve() not implemented for class: ", curve);
  return {};
}

}  // namespace qor::fc
