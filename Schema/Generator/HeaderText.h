#pragma once

#include <set>
#include <string>

#include "Schema/Generator/SchemaModel.h"

namespace qor::schema {

/// The frame of a generated header: what it includes, what it only declares, its namespace.
class HeaderText {
 public:
  HeaderText(const SchemaModel& model, const Group& group) : m_model(model), m_group(group) {}

  /// `file` with its folder from the root: "Fc/BaseType.h".
  void include(const std::string& file) { m_includes.insert(file); }
  void includeStandard(const std::string& header) { m_standard.insert(header); }
  /// Includes what a member of that type needs complete, declares the class of a reference.
  void use(const std::string& ifcName);

  /// The whole file around `body`.
  std::string around(const std::string& body) const;

 private:
  const SchemaModel& m_model;
  const Group& m_group;
  std::set<std::string> m_standard;
  std::set<std::string> m_includes;
  std::set<std::string> m_declared;
};

/// "Fc/Core/Kernel/FcProject.h".
std::string headerOf(const SchemaModel& model, const std::string& ifcName);

}  // namespace qor::schema
