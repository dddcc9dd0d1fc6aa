#include "Host/Targets/ObjWriter.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <ostream>

namespace qor::host::targets {

namespace {

using math::Matrix;
using math::Point3d;

/// A name is one word in this format.
std::string oneWord(std::string text) {
  std::replace(text.begin(), text.end(), ' ', '_');
  return text;
}

class Writer {
 public:
  Writer(const Scene& scene, std::ostream& out) : m_scene(scene), m_out(out) {}

  void add(const SceneObject& object) {
    bool isNamed = false;
    m_scene.forEachContent(
        object, [&](const SceneContent& content, const Matrix& frame, MaterialIndex inherited) {
          if (content.mesh.triangles.empty()) return;
          if (!isNamed)
            m_out << "o "
                  << oneWord(fmt::format("{}_{}_{}", object.className, object.name, object.guid))
                  << "\n";
          isNamed = true;
          addMesh(content.mesh, frame, inherited);
        });
  }

 private:
  void addMesh(const Mesh& mesh, const Matrix& frame, MaterialIndex inherited) {
    m_text.clear();
    const auto end = std::back_inserter(m_text);
    for (const Point3d& local : mesh.points) {
      const Point3d point = local * frame;
      fmt::format_to(end, "v {:.6f} {:.6f} {:.6f}\n", point.x, point.y, point.z);
    }
    const std::size_t second = frame.isMirror() ? 2 : 1;
    for (const MeshRange& range : mesh.ranges) {
      const MaterialIndex material =
          range.material == inheritedMaterial ? inherited : range.material;
      fmt::format_to(end, "usemtl m{}\n", material);
      for (std::size_t i = range.first; i < range.first + range.count; ++i) {
        const std::uint32_t* corner = &mesh.triangles[i * 3];
        fmt::format_to(end, "f {} {} {}\n", m_written + corner[0], m_written + corner[second],
                       m_written + corner[3 - second]);
      }
    }
    m_written += mesh.points.size();
    m_out.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
  }

  const Scene& m_scene;
  std::ostream& m_out;
  std::size_t m_written = 1;  // points so far and one: indices are 1-based
  fmt::memory_buffer m_text;
};

}  // namespace

void writeObj(const Scene& scene, const std::string& materialFile, std::ostream& out,
              std::ostream& materials) {
  out << "mtllib " << materialFile << "\n";
  Writer writer(scene, out);
  for (const SceneObject& object : scene.objects) writer.add(object);
  for (std::size_t i = 0; i < scene.materials.size(); ++i) {
    const SceneMaterial& material = scene.materials[i];
    materials << fmt::format("newmtl m{}\nKd {} {} {}\nd {}\n", i, material.red, material.green,
                             material.blue, material.opacity);
  }
}

}  // namespace qor::host::targets
