#include "Host/Targets/Scene.h"

namespace qor::host::targets {

namespace {

void visitContent(const Scene& scene, const SceneContent& content, const math::Matrix& frame,
                  MaterialIndex inherited, const Scene::Visitor& visit) {
  visit(content, frame, inherited);
  for (const SceneInstance& instance : content.instances)
    visitContent(scene, scene.blocks[instance.block], instance.frame * frame,
                 instance.material == inheritedMaterial ? inherited : instance.material, visit);
}

}  // namespace

void Scene::forEachContent(const SceneObject& object, const Visitor& visit) const {
  visitContent(*this, object.content, object.frame, inheritedMaterial, visit);
}

math::Extent Scene::box() const {
  math::Extent box;
  const Visitor include = [&box](const SceneContent& content, const math::Matrix& frame,
                                 MaterialIndex) {
    for (const math::Point3d& point : content.mesh.points) box.include(point * frame);
    for (const SceneLine& line : content.lines)
      for (const math::Point3d& point : line.points) box.include(point * frame);
    for (const SceneText& text : content.texts) box.include(text.frame.origin() * frame);
  };
  for (const SceneObject& object : objects) forEachContent(object, include);
  return box;
}

}  // namespace qor::host::targets
