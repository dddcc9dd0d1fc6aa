#pragma once

#include <cstddef>
#include <memory>

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Data.h"
#include "Fc/Reflection/FunctionRef.h"
#include "Host/Cli/AttributeValue.h"

namespace qor::host::cli {

/// How an object came into the tree.
enum class TreeRelation {
  root,        ///< a project
  aggregated,  ///< a part of its parent
  nested,      ///< hangs on its parent, in an order
  contained,   ///< stands in the spatial structure that is its parent
  outside,     ///< an element or a spatial structure that no project leads to
};

/// "aggregated": for programs.
const char* nameOf(TreeRelation relation);

struct TreeNode {
  std::shared_ptr<fc::core::kernel::FcObjectDefinition> object;
  std::shared_ptr<fc::core::kernel::FcObjectDefinition> parent;  ///< null for a root
  std::size_t depth;                                             ///< 0 for a root
  TreeRelation relation;
  bool repeated;  ///< was visited before, and is thus not followed again
};

/// Visits what the projects of a model are made of, depth first: parts, then what is nested, then
/// what is contained, each in the order of the file. Then the elements and spatial structures that
/// no project leads to, with what is below them; openings and the like belong to their element and
/// aren't missed.
///
/// Each object is followed once, so that a cycle ends. No recursion; linear in the number of
/// relationships, but for sorting. Ends when `visit` answers false.
void walkModelTree(const fc::Data& data, const NumberOf& numberOf,
                   fc::FunctionRef<bool(const TreeNode&)> visit);

}  // namespace qor::host::cli
