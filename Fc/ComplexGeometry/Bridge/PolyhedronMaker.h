#pragma once

#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "Fc/ComplexGeometry/Bridge/PointMerger.h"
#include "Qor/Math/Point.h"
#include "Qor/Math/Vector.h"

namespace qor::fc {

/// Makes the solid within planar polygons that close, without sewing: what nearly all tessellated
/// bodies and faceted breps are, and several times as fast.
///
/// Points within the length tolerance of each other are one corner. Says nothing about polygons
/// that don't close or aren't planar: sewing reports what is wrong with them.
class PolyhedronMaker {
 public:
  using Ring = std::vector<math::Point3d>;

  /// How far off its plane, in metres, a corner of a polygon may lie that was planar before its
  /// coordinates were rounded to millimetres.
  static constexpr double mostByRounding = 2e-3;

  /// Polygons without holes that are bent by up to `mostBent` metres are split into triangles.
  explicit PolyhedronMaker(double mostBent = mostByRounding)
      : m_merger(m_points), m_mostBent(mostBent) {}

  /// An outer ring and its holes, in metres, without repeated ends. Holes may run either way round.
  void addPolygon(const std::vector<Ring>& rings);

  /// Looks outward. Null unless each edge is used once in each direction, each polygon is planar
  /// within the length tolerance, and all hang together. Throws `Standard_Failure`.
  TopoDS_Shape solid();

 private:
  using Indices = std::vector<std::uint32_t>;
  struct Polygon {
    std::vector<Indices> rings;
    math::Vector3d normal;  // of length 1
  };
  struct Edge {
    TopoDS_Edge edge;  // from the lower index to the higher
    int forward = 0;
    int backward = 0;
  };

  std::optional<Polygon> polygonOf(const std::vector<Ring>& rings);
  Indices indicesOf(const Ring& ring);
  math::Vector3d areaVector(const Indices& ring) const;
  double distanceOffPlane(const Polygon& polygon) const;
  void addFlat(Polygon&& polygon);
  bool isEar(const Indices& ring, std::size_t at, const math::Vector3d& normal) const;
  std::vector<Indices> trianglesOf(const Polygon& polygon) const;
  void countEdges(const Polygon& polygon);
  bool closes() const;
  bool isOneBody() const;

  bool makeEdges(double tolerance);
  TopoDS_Face faceOf(const Polygon& polygon, double tolerance) const;
  TopoDS_Wire wireOf(const Indices& ring) const;

  std::vector<math::Point3d> m_points;
  PointMerger m_merger;
  std::vector<Polygon> m_polygons;
  std::unordered_map<std::uint64_t, Edge> m_edges;
  double m_mostBent;
  double m_offPlane = 0;
  bool m_isSound = true;
};

}  // namespace qor::fc
