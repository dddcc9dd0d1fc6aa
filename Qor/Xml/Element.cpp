#include "Qor/Xml/Element.h"

#include <pugixml.hpp>

namespace qor::xml {

std::string Element::nodeName() const { return pugi::xml_node(m_node).name(); }

std::optional<std::string> Element::attribute(std::string_view name) const {
  const pugi::xml_attribute found = pugi::xml_node(m_node).attribute(std::string(name).c_str());
  if (!found) return std::nullopt;
  return found.value();
}

void Element::setAttribute(std::string_view name, std::string_view value) {
  pugi::xml_node node(m_node);
  const std::string text(name);
  pugi::xml_attribute attribute = node.attribute(text.c_str());
  if (!attribute) attribute = node.append_attribute(text.c_str());
  attribute.set_value(std::string(value).c_str());
}

Element Element::appendElement(std::string_view name) {
  return Element(pugi::xml_node(m_node).append_child(std::string(name).c_str()).internal_object());
}

std::vector<Element> Element::children() const {
  std::vector<Element> result;
  for (const pugi::xml_node child : pugi::xml_node(m_node).children())
    if (child.type() == pugi::node_element) result.emplace_back(child.internal_object());
  return result;
}

}  // namespace qor::xml
