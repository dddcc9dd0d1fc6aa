#include "Qor/Draw/DrawInterfaceBase.h"

#include <algorithm>
#include <span>
#include <utility>

#include "Qor/Assert/Report.h"

namespace qor::generate::draw {

namespace {

using math::Point3d;

// False, and a report, for an index that names no point.
bool look(std::span<const std::uint32_t> indices, const std::vector<Point3d>& coordinates,
          std::vector<Point3d>& loop) {
  loop.clear();
  for (const std::uint32_t index : indices) {
    if (index >= coordinates.size()) {
      report("Illegal index in face");
      return false;
    }
    loop.push_back(coordinates[index]);
  }
  return true;
}

bool look(const PolygonalFaceSetOpenGL::Face& face, const std::vector<Point3d>& coordinates,
          std::vector<std::vector<Point3d>>& loops) {
  loops.resize(1 + face.holes.size());
  if (!look(face.outer, coordinates, loops.front())) return false;
  for (std::size_t i = 0; i < face.holes.size(); ++i)
    if (!look(face.holes[i], coordinates, loops[i + 1])) return false;
  return true;
}

}  // namespace

DrawInterfaceBase::DrawInterfaceBase()
    : DrawInterfaceBase(math::CurveDiscretization(0.001, 12, 96)) {}

DrawInterfaceBase::DrawInterfaceBase(const math::CurveDiscretization& discretization)
    : m_curveDiscretization(discretization.copy()) {}

DrawInterfaceBase::DrawInterfaceBase(const DrawInterfaceBase& other)
    : TransformationInterface(other), m_curveDiscretization(other.m_curveDiscretization->copy()) {}

DrawInterfaceBase& DrawInterfaceBase::operator=(const DrawInterfaceBase& other) {
  m_curveDiscretization = other.m_curveDiscretization->copy();
  return *this;
}

void DrawInterfaceBase::setCurveDiscretization(const math::CurveDiscretization& discretization) {
  m_curveDiscretization = discretization.copy();
}

void DrawInterfaceBase::vPoints(const std::vector<Point3d>& points) {
  std::vector<Point3d> single(1);
  for (const Point3d& point : points) {
    single.front() = point;
    vPolyline(single);
  }
}

void DrawInterfaceBase::vPolygon(const std::vector<Loop2d>& loops,
                                 std::optional<SurfaceDrawType> type) {
  std::vector<Loop3d> lifted;
  lifted.reserve(loops.size());
  for (const Loop2d& loop : loops) {
    Loop3d& target = lifted.emplace_back();
    target.reserve(loop.size());
    for (const math::Point2d& point : loop) target.emplace_back(point.x, point.y, 0);
  }
  vPolygon(lifted, type);
}

void DrawInterfaceBase::triangulatedFaceSet(TriangulatedFaceSet&& faceSet) {
  TriangulatedFaceSetOpenGL indexed;
  std::vector<Point3d> points;
  points.reserve(faceSet.triangles.size() * 3);
  indexed.triangles.reserve(faceSet.triangles.size());
  for (const TriangulatedFaceSet::Triangle& triangle : faceSet.triangles) {
    const auto first = static_cast<std::uint32_t>(points.size());
    points.insert(points.end(), triangle.begin(), triangle.end());
    indexed.triangles.push_back({first, first + 1, first + 2});
  }
  indexed.setVertexData(std::move(points));
  triangulatedFaceSet(std::move(indexed));
}

void DrawInterfaceBase::triangulatedFaceSet(TriangulatedFaceSetOpenGL&& faceSet) {
  drawTriangulatedFaceSetAsPolygons(faceSet);
}

void DrawInterfaceBase::polygonalFaceSet(PolygonalFaceSetOpenGL&& faceSet) {
  drawPolygonalFaceSetAsPolygons(faceSet);
}

TextBoxMeasure DrawInterfaceBase::textLiteralMeasure(const char* /*text*/,
                                                     std::size_t /*length*/) const {
  return {};
}

void DrawInterfaceBase::drawTriangulatedFaceSetAsPolygons(const TriangulatedFaceSetOpenGL& faceSet,
                                                          std::optional<SurfaceDrawType> type) {
  std::vector<Loop3d> loops(1);
  for (const TriangulatedFaceSetOpenGL::Triangle& triangle : faceSet.triangles)
    if (look(triangle, faceSet.coordinates(), loops.front())) vPolygon(loops, type);
}

void DrawInterfaceBase::drawPolygonalFaceSetAsPolygons(const PolygonalFaceSetOpenGL& faceSet,
                                                       std::optional<SurfaceDrawType> type) {
  std::vector<Loop3d> loops;
  for (const PolygonalFaceSetOpenGL::Face& face : faceSet.faces)
    if (look(face, faceSet.coordinates, loops)) vPolygon(loops, type);
}

}  // namespace qor::generate::draw
