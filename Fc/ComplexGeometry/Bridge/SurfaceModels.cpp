// Breps and surface models, which hold shells, for the solid modeller.

#include <TopoDS_Shape.hxx>

#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcShell.h"

namespace qor::fc::resource::geometricmodel {

std::vector<TopoDS_Shape> FcManifoldSolidBrep::ocRepresentation(const FcParams& params) const {
  if (Outer()) return Outer()->ocRepresentation(params);
  report("Outer should exist",
         "qor::fc::resource::geometricmodel::FcManifoldSolidBrep::ocRepresentation", __LINE__);
  return {};
}

std::vector<TopoDS_Shape> FcShellBasedSurfaceModel::ocRepresentation(const FcParams& params) const {
  std::vector<TopoDS_Shape> shapes;
  for (const topology::FcShell& shell : SbsmBoundary()) {
    const auto more = shell.ocRepresentation(params);
    shapes.insert(shapes.end(), more.begin(), more.end());
  }
  return shapes;
}

std::vector<TopoDS_Shape> FcFaceBasedSurfaceModel::ocRepresentation(const FcParams& params) const {
  std::vector<TopoDS_Shape> shapes;
  for (const auto& faces : FbsmFaces()) {
    if (!faces) continue;
    const auto more = faces->ocRepresentation(params);
    shapes.insert(shapes.end(), more.begin(), more.end());
  }
  return shapes;
}

}  // namespace qor::fc::resource::geometricmodel
