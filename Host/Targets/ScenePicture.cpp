#include "Host/Targets/ScenePicture.h"

#include <algorithm>
#include <vector>

#include "Host/Targets/Rasterizer.h"

namespace qor::host::targets {

namespace {

using math::Matrix;
using math::Point3d;

constexpr Rgb white{1, 1, 1};

struct TransparentTriangle {
  Rasterizer::Corners corners;
  MaterialIndex material;
  double depth;
};

/// Draws what is opaque at once, and keeps what is transparent for the end.
class Painter {
 public:
  Painter(const Scene& scene, const Camera& camera, std::size_t width, std::size_t height)
      : m_scene(scene),
        m_camera(camera),
        m_rasterizer(width, height, camera.pixelsPerMetre(), white) {}

  void add(const SceneObject& object) {
    ++m_object;
    m_scene.forEachContent(
        object, [this](const SceneContent& content, const Matrix& frame, MaterialIndex inherited) {
          const Matrix toPicture = frame * m_camera.frame();
          addMesh(content.mesh, toPicture, inherited);
          for (const SceneLine& line : content.lines) addLine(line, toPicture, inherited);
        });
  }

  image::Image finish() {
    m_rasterizer.drawEdges();
    std::sort(m_transparent.begin(), m_transparent.end(),
              [](const auto& a, const auto& b) { return a.depth < b.depth; });
    for (const TransparentTriangle& triangle : m_transparent) {
      const SceneMaterial& material = m_scene.materials[triangle.material];
      m_rasterizer.blendTriangle(triangle.corners, colourOf(material), material.opacity);
    }
    return m_rasterizer.image();
  }

 private:
  static Rgb colourOf(const SceneMaterial& material) {
    return {material.red, material.green, material.blue};
  }
  static MaterialIndex resolve(MaterialIndex material, MaterialIndex inherited) {
    return material == inheritedMaterial ? inherited : material;
  }

  void addMesh(const Mesh& mesh, const Matrix& toPicture, MaterialIndex inherited) {
    m_places.clear();
    m_places.reserve(mesh.points.size());
    for (const Point3d& point : mesh.points) m_places.push_back(point * toPicture);
    for (const MeshRange& range : mesh.ranges) {
      const MaterialIndex index = resolve(range.material, inherited);
      const SceneMaterial& material = m_scene.materials[index];
      for (std::size_t i = range.first; i < range.first + range.count; ++i) {
        const std::uint32_t* corner = &mesh.triangles[i * 3];
        const Rasterizer::Corners corners{m_places[corner[0]], m_places[corner[1]],
                                          m_places[corner[2]]};
        if (material.opacity >= 1)
          m_rasterizer.drawTriangle(corners, colourOf(material), m_object);
        else
          m_transparent.push_back({corners, index, corners[0].z + corners[1].z + corners[2].z});
      }
    }
  }

  void addLine(const SceneLine& line, const Matrix& toPicture, MaterialIndex inherited) {
    const Rgb colour = colourOf(m_scene.materials[resolve(line.material, inherited)]);
    for (std::size_t i = 1; i < line.points.size(); ++i)
      m_rasterizer.drawLine(line.points[i - 1] * toPicture, line.points[i] * toPicture, colour);
  }

  const Scene& m_scene;
  const Camera& m_camera;
  Rasterizer m_rasterizer;
  std::uint32_t m_object = 0;
  std::vector<Point3d> m_places;
  std::vector<TransparentTriangle> m_transparent;
};

}  // namespace

image::Image pictureOf(const Scene& scene, View view, std::size_t width, std::size_t height) {
  const math::Extent box = scene.box();
  if (!box.isValid()) return image::Image(width, height, {255, 255, 255, 255});
  const Camera camera(view, box, static_cast<double>(width), static_cast<double>(height));
  Painter painter(scene, camera, width, height);
  for (const SceneObject& object : scene.objects) painter.add(object);
  return painter.finish();
}

}  // namespace qor::host::targets
