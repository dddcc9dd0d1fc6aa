#include "Schema/Generator/SharedWriter.h"

#include <fmt/format.h>
#include <algorithm>

#include "Schema/Generator/ClassWriter.h"
#include "Schema/Generator/HeaderText.h"
#include "Schema/Generator/TypeWriter.h"

namespace qor::schema {

namespace {

std::string includes(const std::set<std::string>& files) {
  std::string text;
  for (const std::string& file : files) text += fmt::format("#include \"{}\"\n", file);
  return text;
}

// The selects that a select holds, at any depth, with all that their alternatives need complete.
void includeSelect(const SchemaModel& model, const Select& select, std::set<std::string>& files) {
  files.insert(headerOf(model, select.name));
  for (const std::string& member : select.members) {
    files.insert(headerOf(model, member));
    if (model.kind(member) == ElementKind::definedType)
      for (const DefinedType& type : model.table().definedTypes)
        if (type.name == member && model.kind(type.underlying.name) == ElementKind::entity)
          files.insert(headerOf(model, type.underlying.name));
  }
}

std::string visitorName(bool isConst) {
  return isConst ? "FcVisitorBase" : "FcVisitorBaseNonConst";
}

std::string qualified(const SchemaModel& model, const std::string& ifcName) {
  return fmt::format("{}::{}", model.group(ifcName).name, fcName(ifcName));
}

template <class Elements>
std::string pointerTable(const char* type, const char* name, const char* member,
                         const std::vector<Elements>& elements, const Group& group,
                         std::string& span) {
  std::string rows;
  for (const auto& element : elements)
    if (element.group == group.name)
      rows += fmt::format("    &{}::{},\n", fcName(element.name), member);
  span = rows.empty() ? "{}" : name;
  return rows.empty()
             ? ""
             : fmt::format("static constinit const {}* const {}[] = {{\n{}}};\n", type, name, rows);
}

// What the tables of the whole schema are put together from, so that no source needs every class.
std::string groupTables(const SchemaModel& model, const Group& group) {
  std::string classes, enumerations, selects;
  std::string text =
      pointerTable("ClassInfo", "classes", "record", model.table().entities, group, classes) +
      pointerTable("EnumInfo", "enumerations", "table", model.table().enumerations, group,
                   enumerations) +
      pointerTable("SelectInfo", "selects", "table", model.table().selects, group, selects);
  return text + fmt::format(
                    "extern const GroupTables groupTables;\n"
                    "constinit const GroupTables groupTables{{{}, {}, {}}};\n\n",
                    classes, enumerations, selects);
}

}  // namespace

std::string groupSource(const SchemaModel& model, const Group& group) {
  std::set<std::string> files;
  std::string body;
  for (const Select& select : model.table().selects) {
    if (select.group != group.name) continue;
    includeSelect(model, select, files);
    body += selectTable(model, select);
  }
  for (const Entity& entity : model.table().entities) {
    if (entity.group != group.name) continue;
    files.insert(headerOf(model, entity.name));
    for (const Attribute& attribute : entity.attributes) {
      if (model.kind(attribute.type.name) != ElementKind::basic)
        files.insert(headerOf(model, attribute.type.name));
      for (const SchemaModel::Link& link : model.links(entity, attribute))
        files.insert(headerOf(model, link.owner->name));
    }
    body += classSource(model, entity);
  }
  for (const Enumeration& enumeration : model.table().enumerations)
    if (enumeration.group == group.name) files.insert(headerOf(model, enumeration.name));
  body += groupTables(model, group);
  files.insert({"Fc/FcVisitorBase.h", "Fc/FcVisitorBaseNonConst.h", "Fc/Reflection/Links.h",
                "Fc/Reflection/MakeEntity.h", "Fc/Reflection/SchemaTables.h",
                "Fc/Reflection/ValueTraits.h"});
  return fmt::format(R"({0}#include <cstddef>

// What the standard leaves to the compiler, all of them do: the members of these classes have fixed places.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

namespace qor::fc::{1} {{

{2}}}  // namespace qor::fc::{1}
)",
                     includes(files), group.name, body);
}

std::string visitorHeader(const SchemaModel& model, bool isConst) {
  std::map<std::string, std::string> declarations;
  std::string visits;
  for (const Entity& entity : model.table().entities)
    declarations[entity.group] += fmt::format("class {};\n", fcName(entity.name));
  for (const Entity* entity : model.byId())
    visits += fmt::format("  virtual bool visit({}{}& entity);\n", isConst ? "const " : "",
                          qualified(model, entity->name));
  std::string text = "#pragma once\n\n#include \"Qor/Platform/Export.h\"\n\n";
  for (const auto& [group, classes] : declarations)
    text += fmt::format("namespace qor::fc::{} {{\n{}}}\n", group, classes);
  return text + fmt::format(R"(
namespace qor::fc {{

class FcBase;

/// One operation for each schema class: `entity.accept(visitor)` calls that of the entity's class, then those of its supertypes while
/// they answer true, and last that for `FcBase`. Each answers true unless it is overridden.
///
/// A visitor that overrides some of them writes `using {0}::visit;` beside them.
class QOR_API {0} {{
 public:
  virtual ~{0}() = default;

  virtual void visit({1}FcBase& entity);
{2}}};

}}  // namespace qor::fc
)",
                            visitorName(isConst), isConst ? "const " : "", visits);
}

std::string visitorSource(const SchemaModel& model, bool isConst) {
  const std::string name = visitorName(isConst);
  std::string text = fmt::format(
      "#include \"Fc/{0}.h\"\n\nnamespace qor::fc {{\n\nvoid {0}::visit({1}FcBase&) {{}}\n", name,
      isConst ? "const " : "");
  for (const Entity* entity : model.byId())
    text += fmt::format("bool {}::visit({}{}&) {{ return true; }}\n", name, isConst ? "const " : "",
                        qualified(model, entity->name));
  return text + "\n}  // namespace qor::fc\n";
}

std::string schemaTablesSource(const SchemaModel& model) {
  std::set<std::string_view> names;
  for (const Entity& entity : model.table().entities) names.insert(groupNamed(entity.group).name);
  std::string declarations, groups, attributes;
  for (const std::string_view name : names) {
    declarations +=
        fmt::format("namespace {} {{\nextern const GroupTables groupTables;\n}}\n", name);
    groups += fmt::format("    &{}::groupTables,\n", name);
  }
  for (const std::string& name : model.attributeNames())
    attributes += fmt::format("    \"{}\",\n", name);
  return fmt::format(R"(#include "Fc/Reflection/SchemaTables.h"

namespace qor::fc {{

{}
static constinit const GroupTables* const groupTable[] = {{
{}}};
static constinit const char* const attributeNameTable[] = {{
{}}};

std::span<const GroupTables* const> SchemaTables::groups() {{ return groupTable; }}
std::span<const char* const> SchemaTables::attributeNames() {{ return attributeNameTable; }}

}}  // namespace qor::fc
)",
                     declarations, groups, attributes);
}

}  // namespace qor::schema
