#include "Host/Cli/SceneTree.h"

#include <unordered_map>

#include "Host/Cli/ModelTree.h"
#include "Host/Targets/CleanText.h"
#include "Host/Targets/DrawnEntity.h"

namespace qor::host::cli {

void arrangeAsTree(targets::Scene& scene, const fc::Data& data, const NumberOf& numberOf) {
  std::unordered_map<const fc::FcBase*, std::size_t> indices;
  for (std::size_t i = 0; i < scene.objects.size(); ++i)
    if (scene.objects[i].entity) indices.emplace(scene.objects[i].entity, i);
  walkModelTree(data, numberOf, [&](const TreeNode& node) {
    if (node.repeated) return true;
    const fc::FcBase& entity = *node.object;
    const auto [entry, isNew] = indices.try_emplace(&entity, scene.objects.size());
    if (isNew)
      scene.objects.push_back({.entity = &entity,
                               .className = entity.ifcNameUpper(),
                               .guid = targets::guidText(entity),
                               .name = targets::cleanText(targets::nameText(entity))});
    if (node.parent) scene.objects[entry->second].parent = indices.at(node.parent.get());
    return true;
  });
}

}  // namespace qor::host::cli
