// The surfaces of the model for the solid modeller.

#include <GC_MakeLine.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_CylindricalSurface.hxx>
#include <Geom_Plane.hxx>
#include <Geom_SphericalSurface.hxx>
#include <Geom_SurfaceOfLinearExtrusion.hxx>
#include <Geom_SurfaceOfRevolution.hxx>
#include <Geom_ToroidalSurface.hxx>
#include <exception>
#include <gp_Ax1.hxx>

#include "Fc/ComplexGeometry/Bridge/BSplineArrays.h"
#include "Fc/ComplexGeometry/Bridge/FormOfClass.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis1Placement.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Geometry/FcCylindricalSurface.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcPlane.h"
#include "Fc/Resource/Geometry/FcRationalBSplineSurfaceWithKnots.h"
#include "Fc/Resource/Geometry/FcSphericalSurface.h"
#include "Fc/Resource/Geometry/FcSurfaceOfLinearExtrusion.h"
#include "Fc/Resource/Geometry/FcSurfaceOfRevolution.h"
#include "Fc/Resource/Geometry/FcToroidalSurface.h"
#include "Fc/Resource/Profile/FcProfileDef.h"

namespace qor::fc {
namespace resource::geometry {
namespace {

using SurfaceHandle = opencascade::handle<Geom_Surface>;

OcSurface surfaceHandle(Geom_Surface* surface) { return std::make_shared<SurfaceHandle>(surface); }

math::Vector3d vectorOf(const FcDirection& direction) {
  const auto& ratios = direction.DirectionRatios();
  return {ratios[0], ratios[1], ratios[2]};
}

// The frame of a surface; null stands for what a missing one gives.
OcSurface inFrameOf(const FcElementarySurface& surface,
                    const std::function<Geom_Surface*(const gp_Ax3&)>& make) {
  if (!surface.Position()) {
    report("Missing Position on a surface");
    return {};
  }
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceHandle(make(toOpenCascadeFrame(surface.Position()->placementGet())));
  });
}

// The curve that a surface sweeps; null, with an assert, where there is none or where the surface
// is moved by a position of its own.
ocMemoizer::Curve sweptCurve(const FcSweptSurface& surface, ocMemoizer& memoizer,
                             const std::string& className) {
  const std::string function = "qor::fc::resource::geometry::" + className + "::ocSurface";
  if (!surface.SweptCurve()) {
    report("Missing SweptCurve on " + className);
    return {};
  }
  if (surface.Position()) {
    report(className + "::ocSurface does not support explicit Position");
    return {};
  }
  return memoizer.getCurve(*surface.SweptCurve());
}

OcSurface surfaceOf(const FcPlane& surface) {
  return inFrameOf(surface, [](const gp_Ax3& frame) { return new Geom_Plane(frame); });
}

OcSurface surfaceOf(const FcSphericalSurface& surface) {
  return inFrameOf(surface, [&](const gp_Ax3& frame) {
    return new Geom_SphericalSurface(frame, surface.Radius());
  });
}

OcSurface surfaceOf(const FcToroidalSurface& surface) {
  return inFrameOf(surface, [&](const gp_Ax3& frame) {
    return new Geom_ToroidalSurface(frame, surface.MajorRadius(), surface.MinorRadius());
  });
}

OcSurface surfaceOf(const FcCylindricalSurface& surface) {
  return inFrameOf(surface, [&](const gp_Ax3& frame) {
    return new Geom_CylindricalSurface(frame, surface.Radius());
  });
}

OcSurface surfaceOf(const FcBSplineSurfaceWithKnots& surface) {
  return guardedBSpline<OcSurface>("Could not create OpenCascade bspline surface.", [&] {
    return surfaceHandle(new Geom_BSplineSurface(
        bspline::poleGrid(surface.ControlPointsList()),
        bspline::numbers<TColStd_Array1OfReal>(surface.UKnots()),
        bspline::numbers<TColStd_Array1OfReal>(surface.VKnots()),
        bspline::numbers<TColStd_Array1OfInteger>(surface.UMultiplicities()),
        bspline::numbers<TColStd_Array1OfInteger>(surface.VMultiplicities()),
        static_cast<int>(surface.UDegree()), static_cast<int>(surface.VDegree())));
  });
}

OcSurface surfaceOf(const FcRationalBSplineSurfaceWithKnots& surface) {
  return guardedBSpline<OcSurface>("Could not create OpenCascade rational bspline surface.", [&] {
    return surfaceHandle(new Geom_BSplineSurface(
        bspline::poleGrid(surface.ControlPointsList()), bspline::weightGrid(surface.WeightsData()),
        bspline::numbers<TColStd_Array1OfReal>(surface.UKnots()),
        bspline::numbers<TColStd_Array1OfReal>(surface.VKnots()),
        bspline::numbers<TColStd_Array1OfInteger>(surface.UMultiplicities()),
        bspline::numbers<TColStd_Array1OfInteger>(surface.VMultiplicities()),
        static_cast<int>(surface.UDegree()), static_cast<int>(surface.VDegree())));
  });
}

OcSurface surfaceOf(const FcSurfaceOfLinearExtrusion& surface, ocMemoizer& memoizer) {
  const auto curve = sweptCurve(surface, memoizer, "FcSurfaceOfLinearExtrusion");
  if (!curve) return {};
  if (!surface.ExtrudedDirection()) {
    report("Missing ExtrudedDirection on FcSurfaceOfLinearExtrusion");
    return {};
  }
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceHandle(new Geom_SurfaceOfLinearExtrusion(
        *curve, toOpenCascadeDirection(vectorOf(*surface.ExtrudedDirection()))));
  });
}

OcSurface surfaceOf(const FcSurfaceOfRevolution& surface, ocMemoizer& memoizer) {
  const auto curve = sweptCurve(surface, memoizer, "FcSurfaceOfRevolution");
  if (!curve) return {};
  const auto location = surface.AxisPosition()
                            ? fcCast<FcCartesianPoint>(surface.AxisPosition()->Location())
                            : nullptr;
  if (!location) {
    report("Missing AxisPosition on FcSurfaceOfRevolution");
    return {};
  }
  const math::Vector3d axis = surface.AxisPosition()->Axis()
                                  ? vectorOf(*surface.AxisPosition()->Axis())
                                  : math::Vector3d(0, 0, 1);
  return guarded<OcSurface>("Could not create OpenCascade surface.", [&] {
    return surfaceHandle(new Geom_SurfaceOfRevolution(
        *curve, gp_Ax1(bspline::pole(location), toOpenCascadeDirection(axis))));
  });
}

class SurfaceForm : public FormOfClass<OcSurface> {
 public:
  explicit SurfaceForm(ocMemoizer& memoizer) : m_memoizer(memoizer) {}

  using FormOfClass::visit;
  bool visit(const FcPlane& surface) override { return give(surfaceOf(surface)); }
  bool visit(const FcCylindricalSurface& surface) override { return give(surfaceOf(surface)); }
  bool visit(const FcSphericalSurface& surface) override { return give(surfaceOf(surface)); }
  bool visit(const FcToroidalSurface& surface) override { return give(surfaceOf(surface)); }
  bool visit(const FcBSplineSurfaceWithKnots& surface) override { return give(surfaceOf(surface)); }
  bool visit(const FcRationalBSplineSurfaceWithKnots& surface) override {
    return give(surfaceOf(surface));
  }
  bool visit(const FcSurfaceOfLinearExtrusion& surface) override {
    return give(surfaceOf(surface, m_memoizer));
  }
  bool visit(const FcSurfaceOfRevolution& surface) override {
    return give(surfaceOf(surface, m_memoizer));
  }

 private:
  ocMemoizer& m_memoizer;
};

}  // namespace
}  // namespace resource::geometry

OcSurface OpenCascadeModeller::surface(const resource::geometry::FcSurface& surface,
                                       ocMemoizer& memoizer) const {
  if (auto form = resource::geometry::SurfaceForm(memoizer).of(surface)) return *std::move(form);
  assertNotImplemented("ocSurface() not implemented for class: ", surface);
  return {};
}

}  // namespace qor::fc
