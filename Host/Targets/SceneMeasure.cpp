#include "Host/Targets/SceneMeasure.h"

namespace qor::host::targets {

MeshMeasure measureObject(const Scene& scene, const SceneObject& object) {
  std::vector<math::Point3d> points;
  std::vector<std::uint32_t> triangles;
  scene.forEachContent(object,
                       [&](const SceneContent& content, const math::Matrix& frame, MaterialIndex) {
                         const auto base = static_cast<std::uint32_t>(points.size());
                         const std::size_t second = frame.isMirror() ? 2 : 1;
                         for (const math::Point3d& point : content.mesh.points)
                           points.push_back(point * frame);
                         const auto& corners = content.mesh.triangles;
                         for (std::size_t i = 0; i + 2 < corners.size(); i += 3)
                           for (const std::size_t corner : {i, i + second, i + 3 - second})
                             triangles.push_back(base + corners[corner]);
                       });
  return measureMesh(points, triangles);
}

}  // namespace qor::host::targets
