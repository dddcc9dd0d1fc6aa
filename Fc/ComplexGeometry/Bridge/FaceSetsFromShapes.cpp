#include "Fc/ComplexGeometry/Bridge/FaceSetsFromShapes.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Line.hxx>
#include <Geom_Plane.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Wire.hxx>
#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "Fc/ComplexGeometry/Bridge/PointMerger.h"
#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"

namespace qor::fc {
namespace {

using generate::draw::PolygonalFaceSetOpenGL;
using Ring = std::vector<std::uint32_t>;

constexpr double kAngularDeflection = 0.5;  // radians

// The mesher refuses what it can't tell from 0.
double linearDeflection(double chordValue) {
  constexpr double finest = 1e-6, unlimited = 1e6;
  return chordValue > 0 ? std::max(chordValue, finest) : unlimited;
}

using Face = PolygonalFaceSetOpenGL::Face;

bool isPlanar(const TopoDS_Face& face) {
  TopLoc_Location location;
  return !opencascade::handle<Geom_Plane>::DownCast(BRep_Tool::Surface(face, location)).IsNull();
}

bool isStraight(const TopoDS_Edge& edge) {
  TopLoc_Location location;
  double first, last;
  return !opencascade::handle<Geom_Line>::DownCast(BRep_Tool::Curve(edge, location, first, last))
              .IsNull();
}

// The points along a wire, one after the other, each once: `appendEdge` puts those of an edge, but
// its last, behind the others. Empty when the edges of the wire don't follow one another.
template <class AppendEdge>
std::optional<Ring> ringAlong(const TopoDS_Wire& wire, const TopoDS_Face& face,
                              const AppendEdge& appendEdge) {
  Ring ring;
  int edgeCount = 0;
  for (BRepTools_WireExplorer edges(wire, face); edges.More(); edges.Next(), ++edgeCount)
    if (!appendEdge(edges, ring)) return {};
  if (edgeCount != wire.NbChildren()) return {};
  while (ring.size() > 1 && ring.front() == ring.back()) ring.pop_back();
  if (ring.size() < 3) return {};
  return ring;
}

void appendTo(Ring& ring, std::uint32_t index) {
  if (ring.empty() || ring.back() != index) ring.push_back(index);
}

// A planar face as a polygon. Empty when its wires aren't those of a sound face.
template <class AppendEdge>
std::optional<Face> polygonOf(const TopoDS_Face& face, const AppendEdge& appendEdge) {
  const TopoDS_Wire outer = BRepTools::OuterWire(face);
  if (outer.IsNull()) {
    report("There is a Face which has no outer Wire.");
    return {};
  }
  Face polygon;
  for (TopoDS_Iterator part(face); part.More(); part.Next()) {
    if (part.Value().ShapeType() != TopAbs_WIRE) return {};
    auto ring = ringAlong(TopoDS::Wire(part.Value()), face, appendEdge);
    if (!ring) return {};
    if (part.Value().IsSame(outer))
      polygon.outer = std::move(*ring);
    else
      polygon.holes.push_back(std::move(*ring));
  }
  if (polygon.outer.empty()) return {};
  return polygon;
}

// A planar face whose edges are all straight, by its vertices. Empty for any other face.
std::optional<Face> polygonOfVertices(const TopoDS_Face& face, PointMerger& points) {
  if (!isPlanar(face)) return {};
  return polygonOf(face, [&points](const BRepTools_WireExplorer& edges, Ring& ring) {
    if (!isStraight(edges.Current())) return false;
    const gp_Pnt point = BRep_Tool::Pnt(edges.CurrentVertex());
    appendTo(ring, points.indexOf({point.X(), point.Y(), point.Z()}));
    return true;
  });
}

// The set of a shape whose faces are all such: it needs no mesh. Empty for any other shape.
std::optional<PolygonalFaceSetOpenGL> faceSetOfPolyhedron(const TopoDS_Shape& shape) {
  PolygonalFaceSetOpenGL set;
  PointMerger points(set.coordinates);
  for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
    auto polygon = polygonOfVertices(TopoDS::Face(faces.Current()), points);
    if (!polygon) return {};
    set.faces.push_back(std::move(*polygon));
  }
  return set;
}

/// One meshed face on its way into a set.
class MeshedFace {
 public:
  MeshedFace(const TopoDS_Face& face, PointMerger& points)
      : m_face(face), m_points(points), m_mesh(BRep_Tool::Triangulation(face, m_location)) {}

  bool hasMesh() const { return !m_mesh.IsNull(); }

  std::optional<Face> polygon() {
    return polygonOf(m_face, [this](const BRepTools_WireExplorer& edges, Ring& ring) {
      return appendEdge(edges.Current(), ring);
    });
  }

  void addTriangles(std::vector<Face>& faces) {
    const bool reversed = m_face.Orientation() == TopAbs_REVERSED;
    for (int i = 1; i <= m_mesh->NbTriangles(); ++i) {
      int a, b, c;
      m_mesh->Triangle(i).Get(a, b, c);
      if (reversed) std::swap(b, c);
      Ring ring{indexOf(a), indexOf(b), indexOf(c)};
      if (ring[0] != ring[1] && ring[1] != ring[2] && ring[2] != ring[0])
        faces.push_back({.outer = std::move(ring)});
    }
  }

 private:
  std::uint32_t indexOf(int node) {
    const gp_Pnt point = m_mesh->Node(node).Transformed(m_location.Transformation());
    return m_points.indexOf({point.X(), point.Y(), point.Z()});
  }

  // False for an edge that isn't part of the mesh.
  bool appendEdge(const TopoDS_Edge& edge, Ring& ring) {
    const auto nodes = BRep_Tool::PolygonOnTriangulation(edge, m_mesh, m_location);
    if (nodes.IsNull()) return false;
    const bool reversed = edge.Orientation() == TopAbs_REVERSED;
    for (int i = 1; i < nodes->NbNodes(); ++i)
      appendTo(ring, indexOf(nodes->Node(reversed ? nodes->NbNodes() + 1 - i : i)));
    return true;
  }

  TopoDS_Face m_face;
  PointMerger& m_points;
  TopLoc_Location m_location;
  opencascade::handle<Poly_Triangulation> m_mesh;
};

PolygonalFaceSetOpenGL faceSetOfMesh(const TopoDS_Shape& shape) {
  PolygonalFaceSetOpenGL set;
  PointMerger points(set.coordinates);
  for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
    const TopoDS_Face& face = TopoDS::Face(faces.Current());
    MeshedFace meshed(face, points);
    if (!meshed.hasMesh()) {
      // The mesher gives up on slivers whose outline is sound.
      if (auto polygon = polygonOfVertices(face, points))
        set.faces.push_back(std::move(*polygon));
      else
        report("Face didn't have triangulation.");
      continue;
    }
    if (auto polygon = isPlanar(face) ? meshed.polygon() : std::nullopt)
      set.faces.push_back(std::move(*polygon));
    else
      meshed.addTriangles(set.faces);
  }
  return set;
}

PolygonalFaceSetOpenGL faceSetOf(const TopoDS_Shape& shape, double deflection) {
  if (auto set = faceSetOfPolyhedron(shape)) return std::move(*set);
  // The mesher works at once when it is made with its numbers.
  const BRepMesh_IncrementalMesh mesh(shape, deflection, false, kAngularDeflection, false);
  return faceSetOfMesh(shape);
}

}  // namespace

std::vector<PolygonalFaceSetOpenGL> faceSetsFromShapes(
    const std::vector<TopoDS_Shape>& shapes, const math::CurveDiscretization& discretization) {
  const double deflection = linearDeflection(discretization.chordValue());
  std::vector<PolygonalFaceSetOpenGL> sets;
  for (const TopoDS_Shape& shape : shapes) {
    if (shape.IsNull() || (shape.ShapeType() == TopAbs_COMPOUND && shape.NbChildren() == 0))
      continue;
    guardOpenCascade(
        [&] {
          PolygonalFaceSetOpenGL set = faceSetOf(shape, deflection);
          if (!set.faces.empty()) sets.push_back(std::move(set));
        },
        "OpenCascade could not mesh a shape.");
  }
  return sets;
}

}  // namespace qor::fc
