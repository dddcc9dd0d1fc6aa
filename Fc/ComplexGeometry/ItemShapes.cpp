// What items answer by the solid modeller. Nothing of Open CASCADE is called here: the headers are
// those of the types that pass through.

#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <memory>
#include <vector>

#include "Fc/ComplexGeometry/SolidModeller.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Geometry/FcSurface.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Fc/Resource/Topology/FcEdge.h"
#include "Fc/Resource/Topology/FcVertex.h"

namespace qor::fc::resource {

std::vector<TopoDS_Shape> geometry::FcRepresentationItem::ocRepresentation(
    const FcParams& params) const {
  if (const auto* modeller = SolidModeller::get()) return modeller->shapes(*this, params);
  return {};
}

std::vector<TopoDS_Shape> representation::FcRepresentation::ocRepresentation(
    const FcParams& params) const {
  if (const auto* modeller = SolidModeller::get()) return modeller->shapes(*this, params);
  return {};
}

std::vector<TopoDS_Face> profile::FcProfileDef::ocProfile(const FcParams& params) const {
  if (const auto* modeller = SolidModeller::get()) return modeller->faces(*this, params);
  return {};
}

OcCurve profile::FcProfileDef::ocCurve(ocMemoizer& memoizer) const {
  const auto* modeller = SolidModeller::get();
  return modeller ? modeller->curve(*this, memoizer) : nullptr;
}

OcCurve geometry::FcCurve::ocCurve(ocMemoizer& memoizer) const {
  const auto* modeller = SolidModeller::get();
  return modeller ? modeller->curve(*this, memoizer) : nullptr;
}

OcSurface geometry::FcSurface::ocSurface(ocMemoizer& memoizer) const {
  const auto* modeller = SolidModeller::get();
  return modeller ? modeller->surface(*this, memoizer) : nullptr;
}

std::shared_ptr<TopoDS_Edge> topology::FcEdge::ocEdge(ocMemoizer& memoizer) const {
  const auto* modeller = SolidModeller::get();
  return modeller ? modeller->edge(*this, memoizer) : nullptr;
}

std::shared_ptr<TopoDS_Vertex> topology::FcVertex::ocVertex(ocMemoizer& memoizer) const {
  const auto* modeller = SolidModeller::get();
  return modeller ? modeller->vertex(*this, memoizer) : nullptr;
}

}  // namespace qor::fc::resource
