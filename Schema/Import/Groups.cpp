#include "Schema/Import/Groups.h"

#include <sstream>
#include <stdexcept>

#include "Schema/TokenReader.h"
#include "Schema/TypeSyntax.h"

namespace qor::schema {
namespace {

template <class Table, class Function>
void forEachElement(Table& table, const Function& function) {
  for (auto& entity : table.entities) function(entity.name, entity.group);
  for (auto& type : table.definedTypes) function(type.name, type.group);
  for (auto& enumeration : table.enumerations) function(enumeration.name, enumeration.group);
  for (auto& select : table.selects) function(select.name, select.group);
}

void add(Groups& groups, const std::string& name, const std::string& group) {
  const auto [known, added] = groups.emplace(name, group);
  if (!added && known->second != group) {
    throw std::runtime_error(name + " has two groups, " + known->second + " and " + group);
  }
}

bool isTable(const std::string& text) {
  return !text.starts_with('#') && TokenReader(text).at("schema");
}

void readLines(std::istream& in, Groups& groups) {
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) {
    if (text.starts_with('#')) continue;
    TokenReader line(text, number);
    if (line.atEnd()) continue;
    const std::string name = line.identifier("a name");
    const std::string group = readGroup(line);
    line.expectEnd();
    add(groups, name, group);
  }
}

}  // namespace

void readGroups(std::istream& in, Groups& groups) {
  std::ostringstream text;
  text << in.rdbuf();
  std::istringstream again(text.str());
  if (!isTable(text.str())) {
    readLines(again, groups);
    return;
  }
  const SchemaTable table = readSchemaTable(again);
  forEachElement(table, [&](const auto& name, const auto& group) { add(groups, name, group); });
}

void assignGroups(SchemaTable& table, const Groups& groups) {
  std::string missing;
  forEachElement(table, [&](const std::string& name, std::string& group) {
    const auto found = groups.find(name);
    if (found != groups.end()) {
      group = found->second;
    } else {
      missing += " " + name;
    }
  });
  if (!missing.empty()) throw std::runtime_error("no group is given for:" + missing);
}

}  // namespace qor::schema
