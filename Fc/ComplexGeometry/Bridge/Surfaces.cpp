// The surfaces of the model for the solid modeller.

#include <GC_MakeLine.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_CylindricalSurface.hxx>
#include <Geom_Plane.hxx>
#include <Geom_SurfaceOfLinearExtrusion.hxx>
#include <Geom_SurfaceOfRevolution.hxx>
#include <exception>
#include <gp_Ax1.hxx>

#include "Fc/ComplexGeometry/Bridge/BSplineArrays.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/ocMemoizer.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/NotImplemented.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCylindricalSurface.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Geometry/FcRationalBSplineSurfaceWithKnots.h"
#include "Fc/Resource/Geometry/FcSurfaceOfLinearExtrusion.h"
#include "Fc/Resource/Geometry/FcSurfaceOfRevolution.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometry {
namespace {

using SurfaceHandle = opencascade::handle<Geom_Surface>;

OcSurface surfaceOf(Geom_Surface* surface) { return std::make_shared<SurfaceHandle>(surface); }

math::Vector3d vectorOf(const FcDirection& direction) {
  const auto& ratios = direction.DirectionRatios();
  return {ratios[0], ratios[1], ratios[2]};
}

// The frame of a surface; null stands for what a missing one gives.
OcSurface inFrameOf(const FcElementarySurface& surface, const char* function,
                    const std::function<Geom_Surface*(const gp_Ax3&)>& make) {
  if (!surface.Position()) {
    report("Missing Position on a surface", function, __LINE__);
    return {};
  }
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceOf(make(toOpenCascadeFrame(surface.Position()->placementGet())));
  });
}

// The curve that a surface sweeps; null, with an assert, where there is none or where the surface
// is moved by a position of its own.
ocMemoizer::Curve sweptCurve(const FcSweptSurface& surface, ocMemoizer& memoizer,
                             const std::string& className) {
  const std::string function = "qor::fc::resource::geometry::" + className + "::ocSurface";
  if (!surface.SweptCurve()) {
    report("Missing SweptCurve on " + className, function.c_str(), __LINE__);
    return {};
  }
  if (surface.Position()) {
    report(className + "::ocSurface does not support explicit Position", function.c_str(),
           __LINE__);
    return {};
  }
  return memoizer.getCurve(*surface.SweptCurve());
}

}  // namespace

OcSurface FcSurface::ocSurface(ocMemoizer& /*memoizer*/) const {
  assertNotImplemented("ocSurface() not implemented for class: ", *this,
                       "resource::geometry::FcSurface::ocSurface");
  return {};
}

OcSurface FcPlane::ocSurface(ocMemoizer& /*memoizer*/) const {
  return inFrameOf(*this, "qor::fc::resource::geometry::FcPlane::ocSurface",
                   [](const gp_Ax3& frame) { return new Geom_Plane(frame); });
}

OcSurface FcCylindricalSurface::ocSurface(ocMemoizer& /*memoizer*/) const {
  return inFrameOf(
      *this, "qor::fc::resource::geometry::FcCylindricalSurface::ocSurface",
      [this](const gp_Ax3& frame) { return new Geom_CylindricalSurface(frame, Radius()); });
}

OcSurface FcBSplineSurfaceWithKnots::ocSurface(ocMemoizer& /*memoizer*/) const {
  return guardedBSpline<OcSurface>("Could not create OpenCascade bspline surface.", [&] {
    return surfaceOf(new Geom_BSplineSurface(
        bspline::poleGrid(ControlPointsList()), bspline::numbers<TColStd_Array1OfReal>(UKnots()),
        bspline::numbers<TColStd_Array1OfReal>(VKnots()),
        bspline::numbers<TColStd_Array1OfInteger>(UMultiplicities()),
        bspline::numbers<TColStd_Array1OfInteger>(VMultiplicities()), static_cast<int>(UDegree()),
        static_cast<int>(VDegree())));
  });
}

OcSurface FcRationalBSplineSurfaceWithKnots::ocSurface(ocMemoizer& /*memoizer*/) const {
  return guardedBSpline<OcSurface>("Could not create OpenCascade rational bspline surface.", [&] {
    return surfaceOf(new Geom_BSplineSurface(
        bspline::poleGrid(ControlPointsList()), bspline::weightGrid(WeightsData()),
        bspline::numbers<TColStd_Array1OfReal>(UKnots()),
        bspline::numbers<TColStd_Array1OfReal>(VKnots()),
        bspline::numbers<TColStd_Array1OfInteger>(UMultiplicities()),
        bspline::numbers<TColStd_Array1OfInteger>(VMultiplicities()), static_cast<int>(UDegree()),
        static_cast<int>(VDegree())));
  });
}

OcSurface FcSurfaceOfLinearExtrusion::ocSurface(ocMemoizer& memoizer) const {
  const auto curve = sweptCurve(*this, memoizer, "FcSurfaceOfLinearExtrusion");
  if (!curve) return {};
  if (!ExtrudedDirection()) {
    report("Missing ExtrudedDirection on FcSurfaceOfLinearExtrusion",
           "qor::fc::resource::geometry::FcSurfaceOfLinearExtrusion::ocSurface", __LINE__);
    return {};
  }
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceOf(new Geom_SurfaceOfLinearExtrusion(
        *curve, toOpenCascadeDirection(vectorOf(*ExtrudedDirection()))));
  });
}

OcSurface FcSurfaceOfRevolution::ocSurface(ocMemoizer& memoizer) const {
  const auto curve = sweptCurve(*this, memoizer, "FcSurfaceOfRevolution");
  if (!curve) return {};
  const auto location =
      AxisPosition() ? fcCast<FcCartesianPoint>(AxisPosition()->Location()) : nullptr;
  if (!location) {
    report("Missing AxisPosition on FcSurfaceOfRevolution",
           "qor::fc::resource::geometry::FcSurfaceOfRevolution::ocSurface", __LINE__);
    return {};
  }
  const math::Vector3d axis =
      AxisPosition()->Axis() ? vectorOf(*AxisPosition()->Axis()) : math::Vector3d(0, 0, 1);
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceOf(new Geom_SurfaceOfRevolution(
        *curve, gp_Ax1(bspline::pole(location), toOpenCascadeDirection(axis))));
  });
}

}  // namespace qor::fc::resource::geometry
