// Profiles as faces in their own XY plane, and as the curves that surfaces sweep.

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Circ.hxx>

#include "Fc/ComplexGeometry/Bridge/ConversionGuard.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/Bridge/PlanarFace.h"
#include "Fc/ComplexGeometry/ocMemoizer.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/NotImplemented.h"
include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Profile/FcArbitraryOpenProfileDef.h"
#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoids.h"
#include "Fc/Resource/Profile/FcCenterLineProfileDef.h"
#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"
#include "Fc/Resource/Profile/FcCompositeProfileDef.h"
#include "Fc/Resource/Profile/FcDerivedProfileDef.h"
#include "Fc/Resource/Profile/FcParameterizedProfileDef.h"
#include "Fc/Resource/Report.h"
#include "Qor/Math/Epsilon.h"
#include "Qor/Math/PointFactory.h"

namespace qor::fc::resource::profile {
namespace {

using Faces = std::vector<TopoDS_Face>;

constexpr const char* kFailed = "Could not create OpenCascade face of a profile.";

// Of the face that `make` gives when it gives one.
template <class Make>
Faces oneFace(const Make& make) {
  const TopoDS_Face face = guarded<TopoDS_Face>(kFailed, make);
  return face.IsNull() ? Faces{} : Faces{face};
}

TopoDS_Wire wireOf(const std::vector<math::Point2d>& contour) {
  return getClosedWireFromPoints(math::_3d::PointFactory::fromPoints(contour));
}

// One face for each area.
Faces facesOf(const std::vector<generate::draw::Profile2D>& areas) {
  Faces faces;
  for (const generate::draw::Profile2D& area : areas) {
    if (area.empty()) continue;
    const TopoDS_Wire outer = wireOf(area.contours().front());
    if (outer.IsNull()) continue;
    std::vector<TopoDS_Wire> holes;
    for (std::size_t i = 1; i < area.contours().size(); ++i) {
      const TopoDS_Wire hole = wireOf(area.contours()[i]);
      if (!hole.IsNull()) holes.push_back(hole);
    }
    const Faces face = oneFace([&] { return faceWithin(outer, holes, false); });
    faces.insert(faces.end(), face.begin(), face.end());
  }
  return faces;
}

TopoDS_Wire circle(const math::Matrix2d& frame, double radius) {
  const math::Matrix placement = frame.toMatrix3d();
  const gp_Circ circle(toOpenCascadeFrame(placement).Ax2(), radius);
  return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(circle).Edge()).Wire();
}

// The wire round the outer curve of the profile; null, with an assert, when there is none.
TopoDS_Wire outerWire(const FcArbitraryClosedProfileDef& profile, const FcParams& params) {
  const char* const function = "qor::fc::resource::profile::FcArbitraryClosedProfileDef::ocProfile";
  if (!profile.OuterCurve()) {
    report("Expect OuterCurve() to be set.", function, __LINE__);
    return {};
  }
  const TopoDS_Wire wire = profile.OuterCurve()->ocDiscretizedCurve(params);
  if (wire.IsNull()) {
    report("Expected OuterCurve()->ocDiscretizedCurve() to return a OpenCascade Wire", function,
           __LINE__);
  }
  return wire;
}

}  // namespace

Faces FcProfileDef::ocProfile(const FcParams& /*params*/) const {
  assertNotImplemented("ocProfile(const qor::fc::FcParams&) not implemented for class: ", *this,
                       "resource::profile::FcProfileDef::ocProfile");
  return {};
}

OcCurve FcProfileDef::ocCurve(ocMemoizer& /*memoizer*/) const {
  assertNotImplemented("ocCurve() not implemented for class: ", *this,
                       "resource::profile::FcProfileDef::ocCurve");
  return {};
}

Faces FcArbitraryClosedProfileDef::ocProfile(const FcParams& params) const {
  const TopoDS_Wire wire = outerWire(*this, params);
  if (wire.IsNull()) return {};
  return oneFace([&] { return faceWithin(wire, {}, false); });
}

OcCurve FcArbitraryClosedProfileDef::ocCurve(ocMemoizer& memoizer) const {
  return OuterCurve() ? memoizer.getCurve(*OuterCurve()) : nullptr;
}

OcCurve FcArbitraryOpenProfileDef::ocCurve(ocMemoizer& memoizer) const {
  return Curve() ? memoizer.getCurve(*Curve()) : nullptr;
}

Faces FcArbitraryProfileDefWithVoids::ocProfile(const FcParams& params) const {
  const TopoDS_Wire wire = outerWire(*this, params);
  if (wire.IsNull()) return {};
  std::vector<TopoDS_Wire> holes;
  for (const auto& curve : InnerCurves()) {
    const TopoDS_Wire hole = curve ? curve->ocDiscretizedCurve(params) : TopoDS_Wire();
    if (!hole.IsNull()) holes.push_back(hole);
  }
  return oneFace([&] { return faceWithin(wire, holes, false); });
}

Faces FcCenterLineProfileDef::ocProfile(const FcParams& params) const {
  return facesOf(closedProfile(params));
}

Faces FcCircleProfileDef::ocProfile(const FcParams& /*params*/) const {
  return oneFace(
      [&] { return BRepBuilderAPI_MakeFace(circle(validPosition(), Radius()), false).Face(); });
}

Faces FcCircleHollowProfileDef::ocProfile(const FcParams& params) const {
  const double inner = Radius() - WallThickness();
  if (inner <= math::Epsilon::current().length) return FcCircleProfileDef::ocProfile(params);
  return oneFace([&] {
    BRepBuilderAPI_MakeFace face(circle(validPosition(), Radius()), false);
    face.Add(TopoDS::Wire(circle(validPosition(), inner).Reversed()));
    return face.Face();
  });
}

Faces FcCompositeProfileDef::ocProfile(const FcParams& params) const {
  Faces faces;
  const ConversionGuard guard(this);
  if (!guard.mayEnter()) return faces;
  for (const auto& profile : Profiles()) {
    if (!profile) continue;
    const Faces part = profile->ocProfile(params);
    faces.insert(faces.end(), part.begin(), part.end());
  }
  return faces;
}

Faces FcDerivedProfileDef::ocProfile(const FcParams& params) const {
  return facesOf(closedProfile(params));
}

Faces FcParameterizedProfileDef::ocProfile(const FcParams& params) const {
  return facesOf(closedProfile(params));
}

}  // namespace qor::fc::resource::profile
