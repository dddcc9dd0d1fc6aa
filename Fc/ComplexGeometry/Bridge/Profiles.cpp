// Profiles as faces in their own XY plane, and as the curves that surfaces sweep.

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Circ.hxx>

#include "Fc/ComplexGeometry/Bridge/FormOfClass.h"
#include "Fc/ComplexGeometry/Bridge/Guarded.h"
#include "Fc/ComplexGeometry/Bridge/OpenCascadeModeller.h"
#include "Fc/ComplexGeometry/Bridge/PlanarFace.h"
#include "Fc/ComplexGeometry/Bridge/ocMemoizer.h"
#include "Fc/FcParams.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Nesting.h"
#include "Fc/Model/NotImplemented.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcBoundedCurve.h"
#include "Fc/Resource/Profile/FcArbitraryOpenProfileDef.h"
#include "Fc/Resource/Profile/FcArbitraryProfileDefWithVoids.h"
#include "Fc/Resource/Profile/FcCenterLineProfileDef.h"
#include "Fc/Resource/Profile/FcCircleHollowProfileDef.h"
#include "Fc/Resource/Profile/FcCompositeProfileDef.h"
#include "Fc/Resource/Profile/FcDerivedProfileDef.h"
#include "Fc/Resource/Profile/FcParameterizedProfileDef.h"
#include "Qor/Math/Epsilon.h"
#include "Qor/Math/PointFactory.h"

namespace qor::fc {
namespace resource::profile {
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
  if (!profile.OuterCurve()) {
    report("Expect OuterCurve() to be set.");
    return {};
  }
  const TopoDS_Wire wire = profile.OuterCurve()->ocDiscretizedCurve(params);
  if (wire.IsNull()) {
    report("Expected OuterCurve()->ocDiscretizedCurve() to return a OpenCascade Wire");
  }
  return wire;
}

Faces facesOf(const FcArbitraryClosedProfileDef& profile, const FcParams& params) {
  const TopoDS_Wire wire = outerWire(profile, params);
  if (wire.IsNull()) return {};
  return oneFace([&] { return faceWithin(wire, {}, false); });
}

OcCurve curveOf(const FcArbitraryClosedProfileDef& profile, ocMemoizer& memoizer) {
  return profile.OuterCurve() ? memoizer.getCurve(*profile.OuterCurve()) : nullptr;
}

OcCurve curveOf(const FcArbitraryOpenProfileDef& profile, ocMemoizer& memoizer) {
  return profile.Curve() ? memoizer.getCurve(*profile.Curve()) : nullptr;
}

Faces facesOf(const FcArbitraryProfileDefWithVoids& profile, const FcParams& params) {
  const TopoDS_Wire wire = outerWire(profile, params);
  if (wire.IsNull()) return {};
  std::vector<TopoDS_Wire> holes;
  for (const auto& curve : profile.InnerCurves()) {
    const TopoDS_Wire hole = curve ? curve->ocDiscretizedCurve(params) : TopoDS_Wire();
    if (!hole.IsNull()) holes.push_back(hole);
  }
  return oneFace([&] { return faceWithin(wire, holes, false); });
}

Faces facesOf(const FcCircleProfileDef& profile) {
  return oneFace([&] {
    return BRepBuilderAPI_MakeFace(circle(profile.validPosition(), profile.Radius()), false).Face();
  });
}

Faces facesOf(const FcCircleHollowProfileDef& profile) {
  const double inner = profile.Radius() - profile.WallThickness();
  if (inner <= math::Epsilon::current().length)
    return facesOf(static_cast<const FcCircleProfileDef&>(profile));
  return oneFace([&] {
    BRepBuilderAPI_MakeFace face(circle(profile.validPosition(), profile.Radius()), false);
    face.Add(TopoDS::Wire(circle(profile.validPosition(), inner).Reversed()));
    return face.Face();
  });
}

Faces facesOf(const FcCompositeProfileDef& composite, const FcParams& params) {
  Faces faces;
  const Nesting nesting(Nesting::Kind::conversion, composite);
  if (!nesting) return faces;
  for (const auto& profile : composite.Profiles()) {
    if (!profile) continue;
    const Faces part = profile->ocProfile(params);
    faces.insert(faces.end(), part.begin(), part.end());
  }
  return faces;
}

class FaceForm : public FormOfClass<Faces> {
 public:
  explicit FaceForm(const FcParams& params) : m_params(params) {}

  using FormOfClass::visit;
  bool visit(const FcArbitraryClosedProfileDef& profile) override {
    return give(facesOf(profile, m_params));
  }
  bool visit(const FcArbitraryProfileDefWithVoids& profile) override {
    return give(facesOf(profile, m_params));
  }
  bool visit(const FcCenterLineProfileDef& profile) override { return giveContours(profile); }
  bool visit(const FcCircleProfileDef& profile) override { return give(facesOf(profile)); }
  bool visit(const FcCircleHollowProfileDef& profile) override { return give(facesOf(profile)); }
  bool visit(const FcCompositeProfileDef& profile) override {
    return give(facesOf(profile, m_params));
  }
  bool visit(const FcDerivedProfileDef& profile) override { return giveContours(profile); }
  bool visit(const FcParameterizedProfileDef& profile) override { return giveContours(profile); }

 private:
  bool giveContours(const FcProfileDef& profile) {
    return give(facesOf(profile.closedProfile(m_params)));
  }

  const FcParams& m_params;
};

class CurveForm : public FormOfClass<OcCurve> {
 public:
  explicit CurveForm(ocMemoizer& memoizer) : m_memoizer(memoizer) {}

  using FormOfClass::visit;
  bool visit(const FcArbitraryClosedProfileDef& profile) override {
    return give(curveOf(profile, m_memoizer));
  }
  bool visit(const FcArbitraryOpenProfileDef& profile) override {
    return give(curveOf(profile, m_memoizer));
  }

 private:
  ocMemoizer& m_memoizer;
};

}  // namespace
}  // namespace resource::profile

std::vector<TopoDS_Face> OpenCascadeModeller::faces(const resource::profile::FcProfileDef& profile,
                                                    const FcParams& params) const {
  if (auto form = resource::profile::FaceForm(params).of(profile)) return *std::move(form);
  assertNotImplemented("ocProfile(const qor::fc::FcParams&) not implemented for class: ", profile);
  return {};
}

OcCurve OpenCascadeModeller::curve(const resource::profile::FcProfileDef& profile,
                                   ocMemoizer& memoizer) const {
  if (auto form = resource::profile::CurveForm(memoizer).of(profile)) return *std::move(form);
  assertNotImplemented("ocCurve() not implemented for class: ", profile);
  return {};
}

}  // namespace qor::fc
