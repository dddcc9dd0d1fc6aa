#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Qor/Platform/Export.h"

namespace pugi {
struct xml_node_struct;
}

namespace qor::xml {

/// An element of a `File`: one pointer, copied freely, valid as long as its file lives and isn't
/// parsed or created anew. Texts are UTF-8.
class QOR_API Element {
 public:
  explicit Element(pugi::xml_node_struct* node) : m_node(node) {}

  std::string nodeName() const;
  /// The value of an attribute; nothing when the element doesn't have it.
  std::optional<std::string> attribute(std::string_view name) const;
  /// Writes an attribute, behind those that there are when it is new.
  void setAttribute(std::string_view name, std::string_view value);
  /// A new element behind all children that there are.
  Element appendElement(std::string_view name);
  /// The children that are elements, in order; texts and comments are left out.
  std::vector<Element> children() const;

 private:
  pugi::xml_node_struct* m_node;
};

}  // namespace qor::xml
