#include "Qor/Xml/File.h"

#include <istream>
#include <ostream>
#include <pugixml.hpp>

namespace qor::xml {

File::File() : m_document(std::make_unique<pugi::xml_document>()) {}
File::File(File&&) noexcept = default;
File& File::operator=(File&&) noexcept = default;
File::~File() = default;

std::optional<Element> File::create(std::string_view rootName) {
  m_document->reset();
  m_error.clear();
  if (rootName.empty()) return std::nullopt;
  pugi::xml_node declaration = m_document->append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  declaration.append_attribute("standalone") = "yes";
  m_document->append_child(std::string(rootName).c_str());
  return root();
}

bool File::parse(std::istream& stream, const std::string& fileName) {
  const pugi::xml_parse_result result = m_document->load(stream);
  m_error.clear();
  if (result) return true;
  m_document->reset();
  m_error = fileName + ", byte " + std::to_string(result.offset) + ": " + result.description();
  return false;
}

std::optional<Element> File::root() const {
  const pugi::xml_node node = m_document->document_element();
  if (!node) return std::nullopt;
  return Element(node.internal_object());
}

std::vector<Element> File::ElementsByTagNameGet(std::string_view name) const {
  struct Collector : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
      if (node.type() == pugi::node_element && name == node.name())
        found.emplace_back(node.internal_object());
      return true;
    }
    std::string_view name;
    std::vector<Element> found;
  };
  Collector collector;
  collector.name = name;
  m_document->traverse(collector);
  return std::move(collector.found);
}

void File::save(std::ostream& stream) const {
  m_document->save(stream, "  ", pugi::format_indent, pugi::encoding_utf8);
}

}  // namespace qor::xml
