#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcFace.h"
#include "Fc/Resource/Topology/FcFaceOuterBound.h"
#include "Fc/Resource/Topology/FcOpenShell.h"
#include "Fc/Resource/Topology/FcPolyLoop.h"
#include "Fc/Resource/Topology/FcVertexPoint.h"
#include "Tests/Support/Make.h"

// Faces and shells of polygons.
namespace qor::fc::resource::topology {

using Points = std::vector<std::shared_ptr<geometry::FcCartesianPoint>>;

inline std::shared_ptr<geometry::FcCartesianPoint> point(double x, double y, double z) {
  return geometry::makePoint(math::Point3d(x, y, z));
}

inline std::shared_ptr<FcVertexPoint> vertex(double x, double y, double z) {
  return test::make<FcVertexPoint>({{"VertexGeometry", point(x, y, z)}});
}

inline std::shared_ptr<FcPolyLoop> loop(const Points& corners) {
  return test::make<FcPolyLoop>({{"Polygon", corners}});
}

template <class Bound = FcFaceOuterBound>
std::shared_ptr<Bound> bound(const std::shared_ptr<FcLoop>& edge, bool orientation = true) {
  auto result = test::make<Bound>({{"Orientation", orientation}});
  result->setBound(edge);
  return result;
}

template <class Face = FcFace>
std::shared_ptr<Face> face(const std::vector<std::shared_ptr<FcFaceBound>>& bounds) {
  auto result = test::make<Face>();
  result->setBounds(bounds);
  return result;
}

template <class Face = FcFace>
std::shared_ptr<Face> polygon(const Points& corners) {
  return face<Face>({bound(loop(corners))});
}

template <class Shell = FcOpenShell>
std::shared_ptr<Shell> shell(const std::vector<std::shared_ptr<FcFace>>& faces) {
  auto result = test::make<Shell>();
  result->setCfsFaces(faces);
  return result;
}

/// A tetrahedron with edges of one metre along the axes: four points, each in three faces.
struct Tetrahedron {
  Points p{point(0, 0, 0), point(1, 0, 0), point(0, 1, 0), point(0, 0, 1)};
  std::shared_ptr<FcClosedShell> shell =
      topology::shell<FcClosedShell>({polygon({p[0], p[2], p[1]}), polygon({p[0], p[1], p[3]}),
                                      polygon({p[1], p[2], p[3]}), polygon({p[2], p[0], p[3]})});
};

}  // namespace qor::fc::resource::topology
