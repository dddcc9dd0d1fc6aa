#include "Schema/Generator/ClassWriter.h"

#include <fmt/format.h>

#include "Schema/Generator/HeaderText.h"

namespace qor::schema {

namespace {

bool isSingle(const InverseAttribute& inverse) {
  return !inverse.aggregate || (inverse.aggregate->upper && *inverse.aggregate->upper == 1);
}

std::string inverseType(const SchemaModel& model, const Entity& entity,
                        const InverseAttribute& inverse) {
  return fmt::format("{}<{}>", isSingle(inverse) ? "InverseRef" : "InverseSet",
                     model.className(inverse.entity, groupNamed(entity.group)));
}

bool isOptionalWrapped(const std::string& type) { return type.starts_with("std::optional<"); }

// What a list holds: "std::vector<X>" and "std::optional<std::vector<X>>" give X.
std::string elementOfList(std::string type) {
  for (const std::string_view wrapper : {"std::optional<", "std::vector<"})
    if (type.starts_with(wrapper))
      type = type.substr(wrapper.size(), type.size() - wrapper.size() - 1);
  return type;
}

std::string withoutOptional(const std::string& type) {
  return isOptionalWrapped(type) ? type.substr(14, type.size() - 15) : type;
}

// Attributes that only touch their member have inline setters; those that keep an inverse in step
// are real functions.
std::string plainSetters(const std::string& name, const std::string& type, bool optional) {
  std::string text =
      fmt::format("  void set{0}({1} value) {{ m_{0} = std::move(value); }}\n", name, type);
  if (optional) text += fmt::format("  void clear{0}() {{ m_{0} = {{}}; }}\n", name);
  return text;
}

std::string setterDeclarations(const SchemaModel& model, const Entity& entity,
                               const Attribute& attribute) {
  const std::string type = model.memberType(entity, attribute);
  const bool isList = model.isReferenceList(attribute);
  if (model.links(entity, attribute).empty() && !isList)
    return plainSetters(attribute.name, type, attribute.optional);
  std::string text =
      fmt::format("  void set{}({} value);\n", attribute.name, withoutOptional(type));
  if (isList) {
    const bool isSet = attribute.type.aggregates.front().kind == Aggregate::Kind::set;
    const std::string element = elementOfList(type);
    text += fmt::format("  void {}{}({} value);\n", isSet ? "insert" : "pushBack", attribute.name,
                        element);
    text += fmt::format("  void erase{}(const {}& value);\n", attribute.name, element);
  }
  if (attribute.optional) text += fmt::format("  void clear{}();\n", attribute.name);
  return text;
}

std::string setterDefinitions(const SchemaModel& model, const Entity& entity, std::size_t index) {
  const Attribute& attribute = entity.attributes[index];
  const std::string type = model.memberType(entity, attribute);
  const bool isList = model.isReferenceList(attribute);
  if (model.links(entity, attribute).empty() && !isList) return {};
  const std::string owner = generatedClassName(model, entity);
  const auto definition = [&](std::string_view operation, const std::string& parameter,
                              std::string_view helper, std::string_view arguments) {
    return fmt::format("void {0}::{1}{2}({3}) {{ {4}(*this, attributeTable[{5}], {6}); }}\n", owner,
                       operation, attribute.name, parameter, helper, index, arguments);
  };
  const std::string member = "m_" + attribute.name;
  std::string text =
      definition("set", withoutOptional(type) + " value", "setLinked", member + ", value");
  if (isList) {
    const std::string element = elementOfList(type);
    const bool isSet = attribute.type.aggregates.front().kind == Aggregate::Kind::set;
    text += isSet ? definition("insert", element + " value", "insertLinked", "&value")
                  : definition("pushBack", element + " value", "pushBackLinked", "&value");
    text += definition("erase", "const " + element + "& value", "eraseLinked", "&value");
  }
  if (attribute.optional) text += definition("clear", "", "clearLinked", member);
  return text;
}

std::string aggregateArray(const std::string& name, const std::vector<Aggregate>& aggregates) {
  static constexpr std::string_view kinds[] = {"list", "set", "array", "bag"};
  std::string rows;
  for (const Aggregate& level : aggregates)
    rows += fmt::format("{{AggregateInfo::Kind::{}, {}, {}}}, ",
                        kinds[static_cast<std::size_t>(level.kind)], level.lower,
                        level.upper ? std::to_string(*level.upper) : "AggregateInfo::unbounded");
  return fmt::format("static constinit const AggregateInfo {}[] = {{{}}};\n", name, rows);
}

std::string linkArray(const SchemaModel& model, const Entity& entity, const std::string& name,
                      const std::vector<SchemaModel::Link>& links) {
  std::string rows;
  for (const SchemaModel::Link& link : links)
    rows += fmt::format("{{{}, {}, {}, &{}::inverseTable[{}]}}, ", model.firstId(*link.owner),
                        model.lastId(*link.owner), link.single,
                        model.className(link.owner->name, groupNamed(entity.group)), link.index);
  return fmt::format("static constinit const InverseLink {}[] = {{{}}};\n", name, rows);
}

// The two tables of attributes, each behind the arrays that it points into.
std::string attributeTables(const SchemaModel& model, const Entity& entity) {
  const std::string owner = generatedClassName(model, entity);
  std::string arrays, forward, inverse;
  for (const Attribute& attribute : entity.attributes) {
    std::string aggregates = "{}", links = "{}";
    if (!attribute.type.aggregates.empty()) {
      aggregates = fmt::format("aggregatesOf{}_{}", owner, attribute.name);
      arrays += aggregateArray(aggregates, attribute.type.aggregates);
    }
    if (const auto found = model.links(entity, attribute); !found.empty()) {
      links = fmt::format("linksOf{}_{}", owner, attribute.name);
      arrays += linkArray(model, entity, links, found);
    }
    forward += fmt::format(
        "    {{\"{0}\", {1}, \"{2}\", {3}, {4}, {{}}, {5}, offsetof({6}, m_{0}), "
        "&operationsOf<{7}>}},\n",
        attribute.name, model.nameIndex(attribute.name), attribute.type.name, aggregates,
        attribute.optional, links, owner, model.memberType(entity, attribute));
  }
  for (const InverseAttribute& attribute : entity.inverses) {
    std::string aggregates = "{}";
    if (attribute.aggregate) {
      aggregates = fmt::format("aggregatesOf{}_{}", owner, attribute.name);
      arrays += aggregateArray(aggregates, {*attribute.aggregate});
    }
    inverse += fmt::format(
        "    {{\"{0}\", {1}, \"{2}\", {3}, false, \"{4}\", {{}}, offsetof({5}, m_{0}), &{6}}},\n",
        attribute.name, model.nameIndex(attribute.name), attribute.entity, aggregates,
        attribute.forward, owner,
        isSingle(attribute) ? "inverseRefOperations" : "inverseSetOperations");
  }
  std::string text = arrays;
  if (!forward.empty())
    text += fmt::format("constinit const AttributeInfo {}::attributeTable[{}] = {{\n{}}};\n", owner,
                        entity.attributes.size(), forward);
  if (!inverse.empty())
    text += fmt::format("constinit const AttributeInfo {}::inverseTable[{}] = {{\n{}}};\n", owner,
                        entity.inverses.size(), inverse);
  return text;
}

std::string classRecord(const SchemaModel& model, const Entity& entity) {
  const Group& group = groupNamed(entity.group);
  const std::string owner = generatedClassName(model, entity);
  const std::string final = fcName(entity.name);
  std::string derived = "{}", text;
  if (!entity.derived.empty()) {
    derived = "derivedIn" + owner;
    text += fmt::format("static constinit const std::string_view {}[] = {{", derived);
    for (const std::string& name : entity.derived) text += fmt::format("\"{}\", ", name);
    text += "};\n";
  }
  const std::string construct =
      entity.abstract ? "nullptr" : fmt::format("constructEntity<{}>", final);
  return text +
         fmt::format(
             R"(constinit const ClassInfo {0}::record{{StringHash::of("{1}"), StringHash::of("{2}"), "{3}", "{4}", {5}, {6},
    {7}, sizeof({9}), {8}, &typeid({9}), {10}, {11}, {12}, {13}}};
)",
             owner, entity.name, upperName(entity.name), group.title, group.path,
             model.firstId(entity), model.lastId(entity),
             entity.supertype.empty() ? "nullptr"
                                      : "&" + model.className(entity.supertype, group) + "::record",
             construct, final, entity.attributes.empty() ? "{}" : "attributeTable",
             entity.inverses.empty() ? "{}" : "inverseTable", derived, model.linksTargets(entity));
}

/// What a class shows of its attributes, and what it keeps.
struct Declarations {
  std::string accessors, members;
};

std::string getter(const std::string& type, const std::string& name) {
  return fmt::format("  const {0}& {1}() const {{ return m_{1}; }}\n", type, name);
}

bool needsInitializer(const std::string& type) {
  return type == "double" || type == "std::int64_t" || type == "bool" || type == "LogicalValue";
}

void declareForward(const SchemaModel& model, const Entity& entity, HeaderText& header,
                    Declarations& into) {
  for (const Attribute& attribute : entity.attributes) {
    header.use(attribute.type.name);
    const std::string type = model.memberType(entity, attribute);
    if (type.find("CountedTriple") != std::string::npos)
      header.include("Fc/Reflection/CountedTriple.h");
    into.accessors += getter(type, attribute.name) + setterDeclarations(model, entity, attribute);
    into.members +=
        fmt::format("  {} m_{}{};\n", type, attribute.name, needsInitializer(type) ? "{}" : "");
  }
}

void declareInverse(const SchemaModel& model, const Entity& entity, HeaderText& header,
                    Declarations& into) {
  for (const InverseAttribute& inverse : entity.inverses) {
    header.include("Fc/Reflection/InverseSet.h");
    header.use(inverse.entity);
    const std::string type = inverseType(model, entity, inverse);
    into.accessors += getter(type, inverse.name);
    into.members += fmt::format("  {} m_{};\n", type, inverse.name);
  }
}

Declarations declarationsOf(const SchemaModel& model, const Entity& entity, HeaderText& header) {
  Declarations declarations;
  declareForward(model, entity, header, declarations);
  if (!entity.attributes.empty() && !entity.inverses.empty()) declarations.accessors += '\n';
  declareInverse(model, entity, header, declarations);
  return declarations;
}

std::string tableDeclarations(const Entity& entity) {
  std::string tables = "  static const ClassInfo record;\n";
  const auto add = [&tables](const char* name, std::size_t count) {
    if (count > 0) tables += fmt::format("  static const AttributeInfo {}[{}];\n", name, count);
  };
  add("attributeTable", entity.attributes.size());
  add("inverseTable", entity.inverses.size());
  return tables;
}

/// The constructor of a class that others derive from, and the members.
std::string hiddenPart(bool isFinal, const std::string& constructor, const std::string& members) {
  std::string text = isFinal ? "" : constructor;
  if (!members.empty() && !text.empty()) text += '\n';
  text += members;
  if (text.empty()) return text;
  return (isFinal ? "\n private:\n" : "\n protected:\n") + text;
}

}  // namespace

std::string generatedClassName(const SchemaModel& model, const Entity& entity) {
  return fcName(entity.name) + (model.isHandWritten(entity) ? "Attributes" : "");
}

// The destructor is a real function, so that the code of each is that of its own members and not
// that of all above it; constructors, which store little but zeros, are worth repeating.
std::string classHeader(const SchemaModel& model, const Entity& entity) {
  const Group& group = groupNamed(entity.group);
  const std::string name = generatedClassName(model, entity);
  const bool isRoot = entity.supertype.empty();
  const bool isFinal = !entity.abstract && !model.isHandWritten(entity);
  const std::string constructor = fmt::format("  {}() = default;\n", name);
  HeaderText header(model, group);
  header.include(isRoot ? "Fc/FcBase.h" : headerOf(model, entity.supertype));
  const Declarations declared = declarationsOf(model, entity, header);
  return header.around(fmt::format(
      R"(/// {0}, {1}.
class QOR_API {2} : public {3} {{
 public:
  static constexpr std::uint32_t firstClassId = {4};
  static constexpr std::uint32_t lastClassId = {5};
  static constexpr const char* spelling = "qor::fc::{6}::{7}";
{8}{12}  ~{2}() override;
  static const ClassInfo& info() {{ return record; }}
  const ClassInfo& classInfo() const override;
  void accept(FcVisitorBase& visitor) const override;
  void accept(FcVisitorBaseNonConst& visitor) override;
{9}{10}{11}}};
)",
      entity.name, group.path, name, isRoot ? "FcBase" : model.className(entity.supertype, group),
      model.firstId(entity), model.lastId(entity), group.name, fcName(entity.name),
      tableDeclarations(entity), declared.accessors.empty() ? "" : "\n", declared.accessors,
      hiddenPart(isFinal, constructor, declared.members), isFinal ? constructor : ""));
}

std::string classSource(const SchemaModel& model, const Entity& entity) {
  const Group& group = groupNamed(entity.group);
  const std::string owner = generatedClassName(model, entity);
  const std::string parent =
      entity.supertype.empty() ? "FcBase" : model.className(entity.supertype, group);
  std::string text = attributeTables(model, entity) + classRecord(model, entity);
  text += fmt::format(
      "{0}::~{0}() = default;\n"
      "const ClassInfo& {0}::classInfo() const {{ return record; }}\n",
      owner);
  for (const bool isConst : {true, false}) {
    text += fmt::format(
        "void {0}::accept({1}& visitor){2} {{\n  if (visitor.visit(static_cast<{3}{4}&>(*this))) "
        "{5}::accept(visitor);\n}}\n",
        owner, isConst ? "FcVisitorBase" : "FcVisitorBaseNonConst", isConst ? " const" : "",
        isConst ? "const " : "", fcName(entity.name), parent);
  }
  for (std::size_t i = 0; i < entity.attributes.size(); ++i)
    text += setterDefinitions(model, entity, i);
  return text + '\n';
}

}  // namespace qor::schema
