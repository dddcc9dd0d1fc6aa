#include "Host/Targets/SceneTarget.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "Host/Targets/CleanText.h"
#include "Host/Targets/DrawnEntity.h"
#include "Qor/Assert/Report.h"

namespace qor::host::targets {

namespace {

using generate::draw::Material;
using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::SurfaceDrawType;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Matrix;
using math::Point3d;

bool isNear(const Point3d& p) {
  constexpr double far = SceneTarget::farthest;
  return std::abs(p.x) <= far && std::abs(p.y) <= far && std::abs(p.z) <= far;
}

/// The inverse; nothing for a frame without one.
std::optional<Matrix> inverseOf(const Matrix& frame) {
  const double volume = std::abs(frame.x().cross(frame.y()).dot(frame.z()));
  if (!std::isfinite(volume) || volume < 1e-30 || !isNear(frame.origin())) return std::nullopt;
  return frame.inverse();
}

SceneMaterial sceneMaterial(const Material& material) {
  const generate::draw::Color& colour = material.getSurfaceColor();
  SceneMaterial result;
  if (colour.alpha > 0) result = {colour.red, colour.green, colour.blue, 1};
  result.opacity = std::clamp(material.getOpacity().value_or(1.0f), 0.0f, 1.0f);
  return result;
}

}  // namespace

SceneTarget::SceneTarget(const math::CurveDiscretization& discretization)
    : DrawInterfaceBase(discretization) {
  takeScene();
}

Scene SceneTarget::takeScene() {
  Scene result = std::exchange(m_scene, {});
  m_blocks.clear();
  m_materials.clear();
  m_known.clear();
  m_open.assign(1, {});
  m_open.front().hasBase = true;
  m_frame = {};
  m_color = {};
  m_look = {nullptr, indexOf({})};
  return result;
}

void SceneTarget::vTransformationSet(const Matrix& matrix) {
  m_frame = matrix;
  if (!current().hasBase) setBase(current());
}

/// The first frame that an object is given is that of its placement, in which its content is kept.
void SceneTarget::vTransformationMultiply(const Matrix& matrix, math::MatrixMultiplyOrder order) {
  vTransformationSet(order == math::MatrixMultiplyOrder::left ? matrix * m_frame
                                                              : m_frame * matrix);
}

SceneTarget::Open& SceneTarget::current() { return m_open.back(); }

void SceneTarget::setBase(Open& open) {
  open.hasBase = true;
  if (const auto inverse = inverseOf(m_frame)) {
    open.base = m_frame;
    open.fromBase = *inverse;
  }
  if (open.object) m_scene.objects[*open.object].frame = open.base;
}

SceneContent& SceneTarget::content() {
  Open& open = current();
  if (m_open.size() == 1 && !open.object) {
    open.object = m_scene.objects.size();
    m_scene.objects.emplace_back();
  }
  return open.object ? m_scene.objects[*open.object].content : open.content;
}

Matrix SceneTarget::frameInContent() {
  Open& open = current();
  if (!open.hasBase) setBase(open);
  return open.base == m_frame ? Matrix() : m_frame * open.fromBase;
}

/// Into the frame of the content; what lies too far is no number any more. False when some does.
bool SceneTarget::toContent(std::vector<Point3d>& points) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  const Matrix frame = frameInContent();
  const bool isMoved = frame != Matrix();
  bool allNear = true;
  for (Point3d& point : points) {
    if (isMoved) point = point * frame;
    if (isNear(point)) continue;
    point = {none, none, none};
    allNear = false;
  }
  if (!allNear) report("Coordinates that are no place in a model, left out");
  return allNear;
}

void SceneTarget::vPolyline(const std::vector<Point3d>& points) {
  if (points.empty()) return;
  std::vector<Point3d> kept = points;
  if (!toContent(kept)) std::erase_if(kept, [](const Point3d& point) { return !isNear(point); });
  if (!kept.empty()) content().lines.push_back({m_look.index, std::move(kept)});
}

void SceneTarget::vPolygon(const std::vector<Loop3d>& loops, std::optional<SurfaceDrawType> type) {
  if (type == SurfaceDrawType::Edges) {
    for (Loop3d loop : loops) {
      if (!loop.empty()) loop.push_back(loop.front());
      vPolyline(loop);
    }
    return;
  }
  PolygonalFaceSetOpenGL faceSet;
  PolygonalFaceSetOpenGL::Face& face = faceSet.faces.emplace_back();
  for (const Loop3d& loop : loops) {
    auto& indices = &loop == &loops.front() ? face.outer : face.holes.emplace_back();
    for (const Point3d& point : loop) {
      indices.push_back(static_cast<std::uint32_t>(faceSet.coordinates.size()));
      faceSet.coordinates.push_back(point);
    }
  }
  polygonalFaceSet(std::move(faceSet));
}

void SceneTarget::polygonalFaceSet(PolygonalFaceSetOpenGL&& faceSet) {
  std::vector<Point3d>& points = faceSet.coordinates;
  toContent(points);
  const std::size_t given = points.size();
  const auto isLegal = [&](const std::vector<std::uint32_t>& loop) {
    return std::all_of(loop.begin(), loop.end(), [&](std::uint32_t i) { return i < given; });
  };
  std::vector<std::uint32_t> triangles;
  triangles.reserve(faceSet.faces.size() * 6);
  for (const PolygonalFaceSetOpenGL::Face& face : faceSet.faces) {
    if (isLegal(face.outer) && std::all_of(face.holes.begin(), face.holes.end(), isLegal))
      m_triangulator.triangulate(points, face.outer, face.holes, triangles);
    else
      report("Illegal index in face");
  }
  addTriangles(std::move(points), std::move(triangles));
}

void SceneTarget::triangulatedFaceSet(TriangulatedFaceSetOpenGL&& faceSet) {
  std::vector<Point3d> points = faceSet.coordinates();
  toContent(points);
  std::vector<std::uint32_t> triangles;
  triangles.reserve(faceSet.triangles.size() * 3);
  for (const auto& triangle : faceSet.triangles) {
    const auto isIllegal = [&](std::uint32_t i) { return i >= points.size(); };
    const auto isLost = [&](std::uint32_t i) { return !isNear(points[i]); };
    if (std::any_of(triangle.begin(), triangle.end(), isIllegal))
      report("Illegal index in face");
    else if (std::none_of(triangle.begin(), triangle.end(), isLost))
      triangles.insert(triangles.end(), triangle.begin(), triangle.end());
  }
  addTriangles(std::move(points), std::move(triangles));
}

/// Behind the triangles that the content has; of a set without triangles nothing is kept.
void SceneTarget::addTriangles(std::vector<Point3d>&& points,
                               std::vector<std::uint32_t>&& triangles) {
  if (triangles.empty()) return;
  if (frameInContent().isMirror())
    for (std::size_t i = 0; i < triangles.size(); i += 3)
      std::swap(triangles[i + 1], triangles[i + 2]);
  for (Point3d& point : points)
    if (!isNear(point)) point = points[triangles[0]];  // nothing uses it
  Mesh& mesh = content().mesh;
  const std::size_t first = mesh.triangles.size() / 3, count = triangles.size() / 3;
  if (!mesh.ranges.empty() && mesh.ranges.back().material == m_look.index)
    mesh.ranges.back().count += count;
  else
    mesh.ranges.push_back({m_look.index, first, count});
  if (first == 0) {
    mesh.points = std::move(points);
    mesh.triangles = std::move(triangles);
    return;
  }
  const auto base = static_cast<std::uint32_t>(mesh.points.size());
  for (const std::uint32_t index : triangles) mesh.triangles.push_back(base + index);
  mesh.points.insert(mesh.points.end(), points.begin(), points.end());
}

void SceneTarget::vTextLiteral(const char* text, std::size_t length) {
  const Matrix frame = frameInContent();
  if (length == 0 || !isNear(frame.origin())) return;
  content().texts.push_back({m_look.index, cleanText({text, length}), frame});
}

void SceneTarget::startObject(const generate::ObjectInterface* object) {
  SceneObject& opened = m_scene.objects.emplace_back();
  if (const fc::FcBase* entity = drawnEntity(object)) {
    opened.entity = entity;
    opened.className = entity->ifcNameUpper();
    opened.guid = guidText(*entity);
    opened.name = cleanText(nameText(*entity));
  }
  Open& open = m_open.emplace_back();
  open.object = m_scene.objects.size() - 1;
  open.look = m_look;
}

void SceneTarget::stopObject() {
  if (m_open.size() > 1) m_open.pop_back();
}

void SceneTarget::setMaterial(std::shared_ptr<const Material> material) {
  m_look.material = std::move(material);
  if (!m_look.material) {
    m_look.index = indexOf({});
    return;
  }
  const auto [entry, isNew] = m_known.try_emplace(m_look.material);
  if (isNew) entry->second = indexOf(sceneMaterial(*m_look.material));
  m_look.index = entry->second;
}

void SceneTarget::setColor(const generate::draw::Color& color) {
  m_color = color;
  auto material = std::make_shared<Material>();
  material->setSurfaceColor(color);
  setMaterial(std::move(material));
}

MaterialIndex SceneTarget::indexOf(const SceneMaterial& material) {
  const std::array<float, 4> key{material.red, material.green, material.blue, material.opacity};
  const auto [entry, isNew] =
      m_materials.try_emplace(key, static_cast<MaterialIndex>(m_scene.materials.size()));
  if (isNew) m_scene.materials.push_back(material);
  return entry->second;
}

std::uint32_t SceneTarget::startBlock(const std::string& name) {
  const auto known = m_blocks.find(name);
  const bool isKnown = known != m_blocks.end();
  if (isKnown && known->second) addInstance(*known->second, frameInContent());
  Open& open = m_open.emplace_back();
  open.block = name;
  open.isKnown = isKnown;
  open.look = m_look;
  setBase(open);
  // Items without a look of their own get that of each use.
  if (!isKnown) m_look.index = inheritedMaterial;
  return isKnown ? 1 : 0;
}

/// A block gets its number when it is complete, so that it stands behind those that it uses.
void SceneTarget::stopBlock() {
  if (m_open.size() < 2) return;
  Open block = std::move(m_open.back());
  m_open.pop_back();
  m_look = block.look;
  if (block.isKnown) return;
  std::optional<std::size_t>& number = m_blocks[block.block];
  if (block.content.isEmpty()) return;
  number = m_scene.blocks.size();
  m_scene.blocks.push_back(std::move(block.content));
  addInstance(*number, current().base == block.base ? Matrix() : block.base * current().fromBase);
}

void SceneTarget::addInstance(std::size_t block, const Matrix& frame) {
  content().instances.push_back({block, frame, m_look.index});
}

}  // namespace qor::host::targets
