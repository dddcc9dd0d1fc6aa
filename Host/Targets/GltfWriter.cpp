#include "Host/Targets/GltfWriter.h"

#include <tiny_gltf.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <ostream>
#include <utility>

namespace qor::host::targets {

namespace {

using math::Extent;
using math::Matrix;
using math::Point3d;
using math::Vector3d;

constexpr double largeCoordinate =
    1000;  // metres; below, short numbers keep a tenth of a millimetre
constexpr int noMesh = -1;
constexpr std::size_t maxBytes = std::numeric_limits<std::uint32_t>::max() - (1u << 28);

/// A place of whole metres to count coordinates from: the origin itself while all are small.
Vector3d offsetOf(const Extent& box) {
  if (!box.isValid()) return {};
  const Point3d &low = box.minimum(), &high = box.maximum(), centre = box.center();
  const double largest = std::max({std::abs(low.x), std::abs(low.y), std::abs(low.z),
                                   std::abs(high.x), std::abs(high.y), std::abs(high.z)});
  if (largest <= largeCoordinate) return {};
  return {std::round(centre.x), std::round(centre.y), std::round(centre.z)};
}

Matrix moved(const Vector3d& by) { return Matrix::createTranslation(by); }

double linearFromDisplay(float value) {
  const double v = std::clamp(static_cast<double>(value), 0.0, 1.0);
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

tinygltf::Material materialOf(const SceneMaterial& from) {
  tinygltf::Material to;
  to.pbrMetallicRoughness.baseColorFactor = {linearFromDisplay(from.red),
                                             linearFromDisplay(from.green),
                                             linearFromDisplay(from.blue), from.opacity};
  to.pbrMetallicRoughness.metallicFactor = 0;
  to.pbrMetallicRoughness.roughnessFactor = 0.9;
  to.doubleSided = true;
  if (from.opacity < 1) to.alphaMode = "BLEND";
  return to;
}

/// The numbers of all meshes: places in one view of the buffer, indices in the other.
class Numbers {
 public:
  static constexpr int placeView = 0;
  static constexpr int indexView = 1;

  explicit Numbers(tinygltf::Model& model) : m_model(model) {}

  /// The accessor of places.
  int addPlaces(const std::vector<Point3d>& points) {
    tinygltf::Accessor accessor = makeAccessor(placeView, m_places.size() * sizeof(float),
                                               points.size(), TINYGLTF_COMPONENT_TYPE_FLOAT);
    accessor.type = TINYGLTF_TYPE_VEC3;
    accessor.minValues.assign(3, std::numeric_limits<double>::max());
    accessor.maxValues.assign(3, std::numeric_limits<double>::lowest());
    for (const Point3d& point : points) {
      const double coordinates[3] = {point.x, point.y, point.z};
      for (std::size_t i = 0; i < 3; ++i) {
        const auto value = static_cast<float>(coordinates[i]);
        m_places.push_back(value);
        accessor.minValues[i] = std::min<double>(accessor.minValues[i], value);
        accessor.maxValues[i] = std::max<double>(accessor.maxValues[i], value);
      }
    }
    return add(std::move(accessor));
  }

  int addIndices(const std::vector<std::uint32_t>& indices) {
    tinygltf::Accessor accessor =
        makeAccessor(indexView, m_indices.size() * sizeof(std::uint32_t), indices.size(),
                     TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT);
    accessor.type = TINYGLTF_TYPE_SCALAR;
    m_indices.insert(m_indices.end(), indices.begin(), indices.end());
    return add(std::move(accessor));
  }

  bool fits() const { return (m_places.size() + m_indices.size()) * 4 < maxBytes; }

  /// Puts the buffer and its two views into the model; nothing when there are no numbers.
  void finish() {
    if (m_places.empty()) return;
    tinygltf::Buffer& buffer = m_model.buffers.emplace_back();
    const std::size_t places = m_places.size() * sizeof(float);
    const std::size_t indices = m_indices.size() * sizeof(std::uint32_t);
    buffer.data.resize(places + indices);
    std::memcpy(buffer.data.data(), m_places.data(), places);
    std::memcpy(buffer.data.data() + places, m_indices.data(), indices);
    addView(0, places, TINYGLTF_TARGET_ARRAY_BUFFER);
    m_model.bufferViews.back().byteStride = 3 * sizeof(float);  // several meshes share the view
    addView(places, indices, TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
  }

 private:
  static tinygltf::Accessor makeAccessor(int view, std::size_t offset, std::size_t count,
                                         int componentType) {
    tinygltf::Accessor accessor;
    accessor.bufferView = view;
    accessor.byteOffset = offset;
    accessor.count = count;
    accessor.componentType = componentType;
    return accessor;
  }
  int add(tinygltf::Accessor&& accessor) {
    m_model.accessors.push_back(std::move(accessor));
    return static_cast<int>(m_model.accessors.size() - 1);
  }
  void addView(std::size_t offset, std::size_t length, int target) {
    tinygltf::BufferView& view = m_model.bufferViews.emplace_back();
    view.buffer = 0;
    view.byteOffset = offset;
    view.byteLength = length;
    view.target = target;
  }

  tinygltf::Model& m_model;
  std::vector<float> m_places;
  std::vector<std::uint32_t> m_indices;
};

/// A mesh of the file, and where its origin lies in the frame of its content.
struct PlacedMesh {
  int mesh = noMesh;
  Vector3d origin{};
};

/// Makes meshes of contents, each once for each material that it can inherit.
class Meshes {
 public:
  Meshes(tinygltf::Model& model, Numbers& numbers) : m_model(model), m_numbers(numbers) {}

  PlacedMesh meshOf(const SceneContent& content, MaterialIndex inherited) {
    const Key key(&content, usesInherited(content) ? inherited : 0);
    const auto [entry, isNew] = m_known.try_emplace(key);
    if (isNew) entry->second = make(content, {}, inherited);
    return entry->second;
  }

  /// The same in a frame that a node can't have, such as a skew one; shared by nobody.
  PlacedMesh bakedMeshOf(const SceneContent& content, const Matrix& frame,
                         MaterialIndex inherited) {
    return make(content, frame, inherited);
  }

 private:
  using Key = std::pair<const SceneContent*, MaterialIndex>;

  static bool usesInherited(const SceneContent& content) {
    const auto isInherited = [](const auto& part) { return part.material == inheritedMaterial; };
    return std::any_of(content.mesh.ranges.begin(), content.mesh.ranges.end(), isInherited) ||
           std::any_of(content.lines.begin(), content.lines.end(), isInherited);
  }

  PlacedMesh make(const SceneContent& content, const Matrix& frame, MaterialIndex inherited) {
    std::vector<Point3d> points;
    points.reserve(content.mesh.points.size());
    for (const Point3d& point : content.mesh.points) points.push_back(point * frame);
    std::map<MaterialIndex, std::vector<std::uint32_t>> triangles, segments;
    const auto resolve = [&](MaterialIndex material) {
      return material == inheritedMaterial ? inherited : material;
    };
    for (const MeshRange& range : content.mesh.ranges)
      addTriangles(content.mesh, range, frame.isMirror(), triangles[resolve(range.material)]);
    for (const SceneLine& line : content.lines)
      addSegments(line, frame, points, segments[resolve(line.material)]);
    return add(std::move(points), triangles, segments);
  }

  static void addTriangles(const Mesh& mesh, const MeshRange& range, bool mirror,
                           std::vector<std::uint32_t>& indices) {
    for (std::size_t i = range.first; i < range.first + range.count; ++i) {
      const std::uint32_t* corner = &mesh.triangles[i * 3];
      if (corner[0] == corner[1] || corner[1] == corner[2] || corner[2] == corner[0]) continue;
      indices.insert(indices.end(), {corner[0], corner[mirror ? 2 : 1], corner[mirror ? 1 : 2]});
    }
  }

  static void addSegments(const SceneLine& line, const Matrix& frame, std::vector<Point3d>& points,
                          std::vector<std::uint32_t>& indices) {
    for (std::size_t i = 0; i < line.points.size(); ++i) {
      const auto index = static_cast<std::uint32_t>(points.size());
      points.push_back(line.points[i] * frame);
      if (i > 0) indices.insert(indices.end(), {index - 1, index});
    }
  }

  using IndicesByMaterial = std::map<MaterialIndex, std::vector<std::uint32_t>>;

  PlacedMesh add(std::vector<Point3d>&& points, const IndicesByMaterial& triangles,
                 const IndicesByMaterial& segments) {
    tinygltf::Mesh mesh;
    const Vector3d origin = offsetOf(Extent::ofPoints(points));
    for (Point3d& point : points) point = point + -origin;
    int places = noMesh;
    const auto addPrimitives = [&](const IndicesByMaterial& parts, int mode) {
      for (const auto& [material, indices] : parts) {
        if (indices.empty()) continue;
        if (places == noMesh) places = m_numbers.addPlaces(points);
        tinygltf::Primitive& primitive = mesh.primitives.emplace_back();
        primitive.attributes["POSITION"] = places;
        primitive.indices = m_numbers.addIndices(indices);
        primitive.material = static_cast<int>(material);
        primitive.mode = mode;
      }
    };
    addPrimitives(triangles, TINYGLTF_MODE_TRIANGLES);
    addPrimitives(segments, TINYGLTF_MODE_LINE);
    if (mesh.primitives.empty()) return {};
    m_model.meshes.push_back(std::move(mesh));
    return {static_cast<int>(m_model.meshes.size() - 1), origin};
  }

  tinygltf::Model& m_model;
  Numbers& m_numbers;
  std::map<Key, PlacedMesh> m_known;
};

/// Makes the tree of nodes.
class Nodes {
 public:
  Nodes(tinygltf::Model& model, const Scene& scene, Meshes& meshes)
      : m_model(model), m_scene(scene), m_meshes(meshes), m_offset(offsetOf(scene.box())) {}

  void addAll() {
    addRoot();
    const std::vector<bool> leadsToContent = markNeeded();
    std::vector<int> nodes(m_scene.objects.size(), noNode);
    for (std::size_t i = 0; i < nodes.size(); ++i)
      if (leadsToContent[i]) nodes[i] = addNode(m_scene.objects[i].name);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      if (nodes[i] == noNode) continue;
      const SceneObject& object = m_scene.objects[i];
      adopt(object.parent ? nodes[*object.parent] : root, nodes[i]);
      describe(nodes[i], object);
      const Matrix own = frameOf(object);
      const Matrix above = object.parent ? frameOf(m_scene.objects[*object.parent]) : rootFrame();
      place(node(nodes[i]), own == above ? Matrix() : own * above.inverse());
      const Matrix rest = own == object.frame ? Matrix() : object.frame * own.inverse();
      fill(nodes[i], object.content, rest, inheritedMaterial);
    }
  }

 private:
  static constexpr int noNode = -1;
  static constexpr int root = 0;

  void addRoot() {
    addNode("Model");
    const double half = std::sqrt(0.5);
    m_model.nodes[root].rotation = {-half, 0, 0, half};  // Z up becomes Y up
    if (m_offset != Vector3d())
      m_model.nodes[root].translation = {m_offset.x, m_offset.z, -m_offset.y};
    m_model.scenes.emplace_back().nodes = {root};
    m_model.defaultScene = 0;
  }

  std::vector<bool> markNeeded() const {
    std::vector<bool> needed(m_scene.objects.size());
    for (std::size_t i = 0; i < needed.size(); ++i) {
      if (m_scene.objects[i].content.isEmpty()) continue;
      for (std::optional<std::size_t> at = i; at && !needed[*at]; at = m_scene.objects[*at].parent)
        needed[*at] = true;
    }
    return needed;
  }

  tinygltf::Node& node(int index) { return m_model.nodes[static_cast<std::size_t>(index)]; }
  int addNode(const std::string& name) {
    m_model.nodes.emplace_back().name = name;
    return static_cast<int>(m_model.nodes.size() - 1);
  }
  void adopt(int parent, int child) { node(parent).children.push_back(child); }

  Matrix rootFrame() const { return moved(m_offset); }
  /// In project coordinates; that of the root for a frame that a node can't have.
  Matrix frameOf(const SceneObject& object) const {
    return object.frame.isOrthogonal() ? object.frame : rootFrame();
  }

  void describe(int index, const SceneObject& object) {
    tinygltf::Value::Object extras;
    if (!object.guid.empty()) extras["GlobalId"] = tinygltf::Value(object.guid);
    if (!object.className.empty()) extras["class"] = tinygltf::Value(object.className);
    if (!extras.empty()) node(index).extras = tinygltf::Value(extras);
  }

  void fill(int index, const SceneContent& content, const Matrix& frame, MaterialIndex inherited) {
    addMesh(index, content, frame, inherited);
    for (const SceneInstance& instance : content.instances)
      fill(index, m_scene.blocks[instance.block], instance.frame * frame,
           instance.material == inheritedMaterial ? inherited : instance.material);
  }

  void addMesh(int index, const SceneContent& content, const Matrix& frame,
               MaterialIndex inherited) {
    const bool canBeNode = frame.isOrthogonal();
    const PlacedMesh placed = canBeNode ? m_meshes.meshOf(content, inherited)
                                        : m_meshes.bakedMeshOf(content, frame, inherited);
    if (placed.mesh == noMesh) return;
    const Matrix meshFrame = moved(placed.origin) * (canBeNode ? frame : Matrix());
    if (meshFrame == Matrix() && node(index).mesh == noMesh) {
      node(index).mesh = placed.mesh;
      return;
    }
    const int child = addNode("");
    adopt(index, child);
    node(child).mesh = placed.mesh;
    place(node(child), meshFrame);
  }

  static void place(tinygltf::Node& node, const Matrix& frame) {
    const Vector3d &x = frame.x(), &y = frame.y(), &z = frame.z();
    const Point3d& o = frame.origin();
    if (Matrix(x, y, z, {}) != Matrix())
      node.matrix = {x.x, x.y, x.z, 0, y.x, y.y, y.z, 0, z.x, z.y, z.z, 0, o.x, o.y, o.z, 1};
    else if (o != Point3d())
      node.translation = {o.x, o.y, o.z};
  }

  tinygltf::Model& m_model;
  const Scene& m_scene;
  Meshes& m_meshes;
  Vector3d m_offset;
};

}  // namespace

bool writeGlb(const Scene& scene, std::ostream& out) {
  tinygltf::Model model;
  model.asset.version = "2.0";
  model.asset.generator = "fctool";
  for (const SceneMaterial& material : scene.materials)
    model.materials.push_back(materialOf(material));
  Numbers numbers(model);
  Meshes meshes(model, numbers);
  Nodes(model, scene, meshes).addAll();
  if (!numbers.fits()) return false;
  numbers.finish();
  return tinygltf::TinyGLTF().WriteGltfSceneToStream(&model, out, false, true) && out.good();
}

}  // namespace qor::host::targets
