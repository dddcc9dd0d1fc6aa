#include "Host/Cli/ModelTree.h"

#include <algorithm>
#include <ranges>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcFeatureElement.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcSpatialElement.h"

namespace qor::host::cli {

using namespace fc::core::kernel;
using namespace fc::core::productextension;

namespace {

using Object = std::shared_ptr<FcObjectDefinition>;

/// A range of entities, in the order of their numbers.
template <class Range>
auto inOrder(Range&& range, const NumberOf& numberOf) {
  std::vector<std::ranges::range_value_t<Range>> sorted(range.begin(), range.end());
  std::ranges::sort(sorted, {}, [&](const auto& entity) { return numberOf(*entity); });
  return sorted;
}

class TreeWalk {
 public:
  TreeWalk(const fc::Data& data, const NumberOf& numberOf,
           fc::FunctionRef<bool(const TreeNode&)> visit)
      : m_data(data), m_numberOf(numberOf), m_visit(visit) {}

  void run() {
    for (const auto& project : inOrder(m_data.entities<FcProject>(), m_numberOf))
      if (!follow({project, nullptr, 0, TreeRelation::root, false})) return;
    // Whoever has a parent will be found below it, unless the parents form a ring.
    const std::unordered_set<const fc::FcBase*> children = allChildren();
    const std::vector<Object> missed = unvisited();
    for (const bool ring : {false, true})
      for (const Object& object : missed)
        if (!m_visited.contains(object.get()) && children.contains(object.get()) == ring)
          if (!follow({object, nullptr, 0, TreeRelation::outside, false})) return;
  }

 private:
  /// Visits a node and all below it; false when the visitor has enough.
  bool follow(TreeNode&& root) {
    m_stack.push_back(std::move(root));
    while (!m_stack.empty()) {
      TreeNode node = std::move(m_stack.back());
      m_stack.pop_back();
      node.repeated = !m_visited.insert(node.object.get()).second;
      if (!m_visit(node)) return false;
      if (!node.repeated) pushChildren(node);
    }
    return true;
  }

  void pushChildren(const TreeNode& parent) {
    const std::size_t begin = m_stack.size();
    for (const auto& relation : inOrder(parent.object->IsDecomposedBy().lock(), m_numberOf))
      push(parent, relation->RelatedObjects(), TreeRelation::aggregated);
    for (const auto& relation : inOrder(parent.object->IsNestedBy().lock(), m_numberOf))
      push(parent, relation->RelatedObjects(), TreeRelation::nested);
    if (const auto structure = fc::fcCast<FcSpatialElement>(parent.object))
      for (const auto& relation : inOrder(structure->ContainsElements().lock(), m_numberOf))
        push(parent, relation->RelatedElements(), TreeRelation::contained);
    // The last one on the stack is visited first.
    std::reverse(m_stack.begin() + static_cast<std::ptrdiff_t>(begin), m_stack.end());
  }

  template <class Children>
  void push(const TreeNode& parent, const Children& children, TreeRelation relation) {
    for (const auto& child : children)
      if (child) m_stack.push_back({child, parent.object, parent.depth + 1, relation, false});
  }

  std::unordered_set<const fc::FcBase*> allChildren() const {
    std::unordered_set<const fc::FcBase*> children;
    const auto add = [&](const auto& related) {
      for (const auto& child : related) children.insert(child.get());
    };
    for (const auto& relation : m_data.entities<FcRelAggregates>()) add(relation->RelatedObjects());
    for (const auto& relation : m_data.entities<FcRelNests>()) add(relation->RelatedObjects());
    for (const auto& relation : m_data.entities<FcRelContainedInSpatialStructure>())
      add(relation->RelatedElements());
    return children;
  }

  std::vector<Object> unvisited() const {
    std::vector<Object> found;
    for (const auto& structure : m_data.entities<FcSpatialElement>())
      if (!m_visited.contains(structure.get())) found.push_back(structure);
    for (const auto& element : m_data.entities<FcElement>())
      if (!m_visited.contains(element.get()) && !fc::fcCast<FcFeatureElement>(element.get()))
        found.push_back(element);
    return inOrder(found, m_numberOf);
  }

  const fc::Data& m_data;
  const NumberOf& m_numberOf;
  fc::FunctionRef<bool(const TreeNode&)> m_visit;
  std::unordered_set<const fc::FcBase*> m_visited;
  std::vector<TreeNode> m_stack;
};

}  // namespace

const char* nameOf(TreeRelation relation) {
  switch (relation) {
    case TreeRelation::root:
      return "root";
    case TreeRelation::aggregated:
      return "aggregated";
    case TreeRelation::nested:
      return "nested";
    case TreeRelation::contained:
      return "contained";
    case TreeRelation::outside:
      return "outside";
  }
  return "";
}

void walkModelTree(const fc::Data& data, const NumberOf& numberOf,
                   fc::FunctionRef<bool(const TreeNode&)> visit) {
  TreeWalk(data, numberOf, visit).run();
}

}  // namespace qor::host::cli
