#include "Schema/Generator/TypeWriter.h"

#include <fmt/format.h>
#include <algorithm>

#include "Schema/Generator/HeaderText.h"

namespace qor::schema {

namespace {

std::vector<std::string> alternatives(const Select& select) {
  std::vector<std::string> members = select.members;
  std::sort(members.begin(), members.end());
  return members;
}

// From pointers to the classes below the alternative, which no pointer turns into by itself.
std::string derivedConstructor(const SchemaModel& model, const Group& group,
                               const std::string& name, const std::string& entity) {
  return fmt::format(
      "  template <Below<{1}> Entity>\n"
      "  {0}(std::shared_ptr<Entity> value) : {0}(std::shared_ptr<{1}>(std::move(value))) {{}}\n",
      name, model.className(entity, group));
}

// Alternatives of the selects below this one, so that a caller needn't name the select between.
std::string nestedConstructors(const SchemaModel& model, const Select& select,
                               const std::string& member) {
  const Group& group = groupNamed(select.group);
  const std::string name = generatedSelectName(model, select);
  std::string text;
  for (const std::string& leaf : alternatives(model.select(member))) {
    const ElementKind kind = model.kind(leaf);
    if (kind == ElementKind::select) continue;
    text += fmt::format("  {0}({1} value) : {0}({2}(std::move(value))) {{}}\n", name,
                        model.alternativeType(leaf, group), model.className(member, group));
    if (kind == ElementKind::entity) text += derivedConstructor(model, group, name, leaf);
  }
  return text;
}

std::string presentation(const SchemaModel& model, const DefinedType& type) {
  if (!model.isNumericMeasure(type)) return {};
  return fmt::format(R"(
  /// With the default settings of its quantity; null, with an assert, where it can't be shown with a unit.
  std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation() const {{
    return createMeasurePresentation("{}", static_cast<double>(value()));
  }}
)",
                     shortName(type.name));
}

}  // namespace

std::string enumerationHeader(const SchemaModel& model, const Enumeration& enumeration) {
  const Group& group = groupNamed(enumeration.group);
  HeaderText header(model, group);
  header.include("Fc/Reflection/EnumInfo.h");
  std::string enumerators, names;
  for (const std::string& name : enumeration.enumerators) {
    enumerators += fmt::format("    {},\n", name);
    names += fmt::format("      \"{}\",\n", name);
  }
  return header.around(fmt::format(R"(/// {0}, {1}.
class {2} : public EnumBase<{2}> {{
 public:
  enum Enum : std::uint8_t {{
{3}  }};
  static constexpr const char* names[] = {{
{4}  }};
  static constexpr EnumInfo table{{"{0}", names}};
  static const EnumInfo& info() {{ return table; }}

  {2}() = default;
  {2}(Enum value) : m_value(value) {{}}
  operator Enum() const {{ return m_value; }}
  Enum value() const {{ return m_value; }}

 private:
  Enum m_value = Enum(0);
}};
)",
                                   enumeration.name, group.path, fcName(enumeration.name),
                                   enumerators, names));
}

std::string definedTypeHeader(const SchemaModel& model, const DefinedType& type) {
  const Group& group = groupNamed(type.group);
  HeaderText header(model, group);
  header.include("Fc/BaseType.h");
  if (model.basicType(type.name).empty()) header.use(type.underlying.name);
  if (model.isNumericMeasure(type)) header.include("Fc/Resource/Measure/MeasureQuantities.h");
  return header.around(fmt::format(R"(/// {0}, {1}.
class {2} : public BaseType<{3}> {{
 public:
  using BaseType::BaseType;
  static constexpr const char* ifcName = "{0}";
  static constexpr const char* spelling = "qor::fc::{4}::{2}";
{5}}};
)",
                                   type.name, group.path, fcName(type.name), model.valueType(type),
                                   group.name, presentation(model, type)));
}

std::string generatedSelectName(const SchemaModel& model, const Select& select) {
  return fcName(select.name) + (model.isHandWritten(select) ? "Alternatives" : "");
}

std::string selectHeader(const SchemaModel& model, const Select& select) {
  const Group& group = groupNamed(select.group);
  const std::string name = generatedSelectName(model, select);
  HeaderText header(model, group);
  header.include("Fc/Reflection/SelectBase.h");
  std::string types, constructors, getters;
  for (const std::string& member : alternatives(select)) {
    header.use(member);
    const std::string type = model.alternativeType(member, group);
    types += shortName(member) + ", ";
    constructors += fmt::format("  {0}({1} value) {{ put(Types::{2}, std::move(value)); }}\n", name,
                                type, shortName(member));
    if (model.kind(member) == ElementKind::entity)
      constructors += derivedConstructor(model, group, name, member);
    if (model.kind(member) == ElementKind::select)
      constructors += nestedConstructors(model, select, member);
    getters += fmt::format("  const {0}& {1}() const {{ return get<{0}>(Types::{1}); }}\n", type,
                           shortName(member));
  }
  return header.around(fmt::format(R"(/// {0}, {1}.
class QOR_API {2} : public Select<{2}> {{
 public:
  enum class Types : std::uint8_t {{ {3}NotSet }};
  static constexpr bool hasValues = {4};
  static constexpr const char* spelling = "qor::fc::{5}::{8}";
  static const SelectInfo table;
  static const SelectInfo& info() {{ return table; }}

  {2}() = default;
  {2}(Types type) {{ set(type); }}
  {2}(const {2}& other, FcCopySettings& settings) : Select(other, settings) {{}}
{6}
{7}}};
)",
                                   select.name, group.path, name, types,
                                   !model.entitiesOnly(select), group.name, constructors, getters,
                                   fcName(select.name)));
}

std::string selectTable(const SchemaModel& model, const Select& select) {
  const Group& group = groupNamed(select.group);
  std::string rows;
  int values = 0;
  bool nestedOnly = true;
  for (const std::string& member : alternatives(select)) {
    const ElementKind kind = model.kind(member);
    const bool isEntity = kind == ElementKind::entity;
    const bool isSelect = kind == ElementKind::select;
    nestedOnly = nestedOnly && isSelect;
    values += !isEntity && !isSelect;
    rows +=
        fmt::format("    {{\"{}\", \"{}\", \"{}\", {}, {}, {}, &alternativeOperationsOf<{}>}},\n",
                    shortName(member), member, upperName(member),
                    isEntity ? model.firstId(model.entity(member)) : 1,
                    isEntity ? model.lastId(model.entity(member)) : 0,
                    isSelect ? "&" + model.className(member, group) + "::table" : "nullptr",
                    model.alternativeType(member, group));
  }
  return fmt::format(R"(static constinit const AlternativeInfo alternativesOf{0}[] = {{
{1}}};
constinit const SelectInfo {0}::table{{"{2}", alternativesOf{0}, {3}, {4}, {5}}};

)",
                     generatedSelectName(model, select), rows, select.name, nestedOnly, values,
                     model.entitiesOnly(select));
}

}  // namespace qor::schema
