#include "Schema/Generator/HeaderText.h"

#include <fmt/format.h>

namespace qor::schema {

std::string headerOf(const SchemaModel& model, const std::string& ifcName) {
  return fmt::format("Fc/{}/{}.h", model.group(ifcName).folder(), fcName(ifcName));
}

void HeaderText::use(const std::string& ifcName) {
  switch (m_model.kind(ifcName)) {
    case ElementKind::basic:
      break;
    case ElementKind::entity:
      m_declared.insert(ifcName);
      break;
    default:
      include(headerOf(m_model, ifcName));
  }
}

std::string HeaderText::around(const std::string& body) const {
  std::string text = "#pragma once\n\n";
  for (const std::string& header : m_standard) text += fmt::format("#include <{}>\n", header);
  if (!m_standard.empty()) text += '\n';
  for (const std::string& file : m_includes) text += fmt::format("#include \"{}\"\n", file);
  text += '\n';
  std::map<std::string_view, std::string> others;
  std::string own;
  for (const std::string& name : m_declared) {
    const Group& group = m_model.group(name);
    (group.name == m_group.name ? own : others[group.name]) +=
        fmt::format("class {};\n", fcName(name));
  }
  for (const auto& [group, classes] : others)
    text += fmt::format("namespace qor::fc::{} {{\n{}}}\n", group, classes);
  if (!others.empty()) text += '\n';
  text += fmt::format("namespace qor::fc::{} {{\n\n", m_group.name);
  if (!own.empty()) text += own + '\n';
  return text + body + fmt::format("\n}}  // namespace qor::fc::{}\n", m_group.name);
}

}  // namespace qor::schema
