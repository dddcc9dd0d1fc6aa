// Breps and surface models, which hold shells, for the solid modeller.

#include <TopoDS_Shape.hxx>

#include "Fc/ComplexGeometry/Bridge/ShapesOf.h"
#include "Fc/FcParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricModel/FcFaceBasedSurfaceModel.h"
#include "Fc/Resource/GeometricModel/FcManifoldSolidBrep.h"
#include "Fc/Resource/GeometricModel/FcShellBasedSurfaceModel.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcShell.h"

namespace qor::fc::resource::geometricmodel {

Shapes shapesOf(const FcManifoldSolidBrep& item, const FcParams& params) {
  if (item.Outer()) return item.Outer()->ocRepresentation(params);
  report("Outer should exist");
  return {};
}

Shapes shapesOf(const FcShellBasedSurfaceModel& item, const FcParams& params) {
  Shapes shapes;
  for (const topology::FcShell& shell : item.SbsmBoundary()) {
    const auto more = shell.ocRepresentation(params);
    shapes.insert(shapes.end(), more.begin(), more.end());
  }
  return shapes;
}

Shapes shapesOf(const FcFaceBasedSurfaceModel& item, const FcParams& params) {
  Shapes shapes;
  for (const auto& faces : item.FbsmFaces()) {
    if (!faces) continue;
    const auto more = faces->ocRepresentation(params);
    shapes.insert(shapes.end(), more.begin(), more.end());
  }
  return shapes;
}

}  // namespace qor::fc::resource::geometricmodel
