#include "Host/Cli/PropertiesCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Fc/Core/Kernel/FcPreDefinedPropertySet.h"
#include "Fc/Resource/Material/FcMaterialDefinition.h"
#include "Fc/Resource/Material/FcMaterialProperties.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Profile/FcProfileProperties.h"
#include "Fc/Resource/Property/FcProperty.h"
#include "Fc/Resource/Quantity/FcPhysicalQuantity.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/EntityOption.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/PropertySets.h"
#include "Host/Cli/PropertyValue.h"

namespace qor::host::cli {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPreDefinedPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::kernel::FcRoot;
using fc::resource::material::FcMaterialProperties;
using fc::resource::profile::FcProfileProperties;
using fc::resource::property::FcExtendedProperties;
using fc::resource::property::FcProperty;
using fc::resource::quantity::FcPhysicalQuantity;

namespace {

using Json = nlohmann::ordered_json;
using Entity = std::shared_ptr<const fc::FcBase>;

/// What has properties, with these; a set that belongs to nothing has no holder, and neither has a
/// property in no set, whose table has no set.
struct Holder {
  Entity entity;
  std::vector<PropertyTable> tables;
};

/// Takes the holders one after the other: as lines for a person, or as JSON.
class Output {
 public:
  virtual ~Output() = default;
  virtual void put(const Holder& holder) = 0;
};

/// Attributes of a predefined set beyond those that each set has.
template <class Callback>
void forEachOwnAttribute(const fc::FcBase& set, Callback&& callback) {
  set.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (FcRoot::info().findAttribute(attribute.name)) return;
    const fc::LocalValue value = attribute.type->getLocalValue(attribute.of(set));
    if (!value.isEmpty()) callback(attribute, value);
  });
}

class TextOutput : public Output {
 public:
  TextOutput(const NumberOf& numberOf, std::ostream& out) : m_numberOf(numberOf), m_out(out) {}

  void put(const Holder& holder) override {
    m_out << (holder.entity ? labelOf(*holder.entity) : "Of no object:") << "\n";
    for (const PropertyTable& table : holder.tables) {
      if (table.set) m_out << "  " << labelOf(*table.set) << "\n";
      for (const PropertyRow& row : table.rows) putRow(row);
      if (!fc::fcCast<FcPreDefinedPropertySet>(table.set.get())) continue;
      forEachOwnAttribute(*table.set,
                          [&](const fc::AttributeInfo& attribute, const fc::LocalValue& value) {
                            m_out << fmt::format("    {}: {}\n", attribute.name,
                                                 valueText(value, attribute, m_numberOf, "      "));
                          });
    }
  }

 private:
  std::string labelOf(const fc::FcBase& entity) const { return label(entity, m_numberOf(entity)); }

  void putRow(const PropertyRow& row) {
    const std::string text = propertyText(*row.property, m_numberOf);
    const std::string name = nameOf(*row.property).value_or("");
    m_out << fmt::format("{:{}}{}{}{}{}\n", "", 4 + 2 * std::min<std::size_t>(row.depth, 40),
                         name.empty() ? "(no name)" : printable(name), text.empty() ? "" : ": ",
                         text, row.fromType ? "  (of its type)" : "");
  }

  const NumberOf& m_numberOf;
  std::ostream& m_out;
};

class JsonOutput : public Output {
 public:
  JsonOutput(const std::string& file, const NumberOf& numberOf, std::ostream& out)
      : m_numberOf(numberOf), m_out(out) {
    m_out << "{\n  \"file\": " << toLine(file) << ",\n  \"objects\": [";
  }
  JsonOutput(const JsonOutput&) = delete;
  JsonOutput& operator=(const JsonOutput&) = delete;
  ~JsonOutput() override { m_out << "\n  ]\n}\n"; }

  void put(const Holder& holder) override {
    Json json = holder.entity ? labelOf(*holder.entity) : Json{{"id", nullptr}};
    json["sets"] = Json::array();
    for (const PropertyTable& table : holder.tables) json["sets"].push_back(setJson(table));
    m_out << m_separator << "    " << toLine(json);
    m_separator = ",\n";
  }

 private:
  Json labelOf(const fc::FcBase& entity) const { return jsonLabel(entity, m_numberOf(entity)); }

  Json setJson(const PropertyTable& table) const {
    Json json = table.set ? labelOf(*table.set) : Json{{"id", nullptr}};
    json["properties"] = Json::array();
    for (const PropertyRow& row : table.rows) {
      Json property = labelOf(*row.property);
      property["depth"] = row.depth;
      property["fromType"] = row.fromType;
      property["text"] = propertyText(*row.property, m_numberOf);
      property["value"] = propertyJson(*row.property, m_numberOf);
      json["properties"].push_back(std::move(property));
    }
    if (fc::fcCast<FcPreDefinedPropertySet>(table.set.get()))
      forEachOwnAttribute(
          *table.set, [&](const fc::AttributeInfo& attribute, const fc::LocalValue& value) {
            json["properties"].push_back(
                {{"name", attribute.name}, {"value", valueJson(value, m_numberOf)}});
          });
    return json;
  }

  const NumberOf& m_numberOf;
  std::ostream& m_out;
  const char* m_separator = "\n";
};

/// All that has properties in a model, and in the end what was left over.
class PropertiesWalk {
 public:
  PropertiesWalk(const step::ReadResult& model, const NumberOf& numberOf, std::ostream& out,
                 Output& output)
      : m_model(model), m_numberOf(numberOf), m_out(out), m_output(output) {}

  void run() {
    forEach<FcObjectDefinition>(
        [&](const auto& object) { return propertySetsOf(*object, m_numberOf); });
    forEachExtended();
    putRest();
  }

 private:
  template <class T, class Tables>
  void forEach(Tables&& tablesOf) {
    for (const step::NumberedEntity& instance : m_model.instances)
      if (const auto entity = fc::fcCast<T>(instance.entity)) put({entity, tablesOf(entity)});
  }

  // Properties of materials and profiles.
  void forEachExtended() {
    for (const step::NumberedEntity& instance : m_model.instances) {
      const auto set = fc::fcCast<FcExtendedProperties>(instance.entity);
      if (!set) continue;
      Entity owner;
      if (const auto material = fc::fcCast<FcMaterialProperties>(set)) owner = material->Material();
      if (const auto profile = fc::fcCast<FcProfileProperties>(set))
        owner = profile->ProfileDefinition();
      put({owner, {tableOf(set)}});
    }
  }

  void putRest() {
    Holder rest;
    const auto add = [&](PropertyTable&& table) {
      note(table);
      rest.tables.push_back(std::move(table));
    };
    for (const step::NumberedEntity& instance : m_model.instances)
      if (fc::fcCast<FcPropertySetDefinition>(instance.entity) &&
          !m_shown.contains(instance.entity.get()))
        add(tableOf(instance.entity));
    for (const step::NumberedEntity& instance : m_model.instances) {
      const fc::FcBase* entity = instance.entity.get();
      const bool isProperty =
          fc::fcCast<FcProperty>(entity) || fc::fcCast<FcPhysicalQuantity>(entity);
      if (isProperty && !m_shown.contains(entity)) add({nullptr, rowsOf(instance.entity)});
    }
    if (!rest.tables.empty()) m_output.put(rest);
  }

  void put(const Holder& holder) {
    if (holder.tables.empty() || !m_out.good()) return;
    for (const PropertyTable& table : holder.tables) note(table);
    m_output.put(holder);
  }

  void note(const PropertyTable& table) {
    m_shown.insert(table.set.get());
    for (const PropertyRow& row : table.rows) m_shown.insert(row.property.get());
  }

  const step::ReadResult& m_model;
  const NumberOf& m_numberOf;
  std::ostream& m_out;
  Output& m_output;
  std::unordered_set<const fc::FcBase*> m_shown;
};

}  // namespace

ExitCode runProperties(const PropertiesOptions& options, Console& console) {
  std::optional<Guid> guid;
  if (!options.guid.empty() && !(guid = guidFromText(options.guid, console)))
    return ExitCode::impossible;
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  std::shared_ptr<FcObjectDefinition> object;
  if (guid) {
    const auto root = findRoot(*model, *guid, options.file.string(), console);
    if (!root) return ExitCode::impossible;
    object = fc::fcCast<FcObjectDefinition>(root);
    if (!object)
      return refuse(console, fmt::format("{} is no object or type, and has no properties",
                                         root->ifcNameUpper()));
  }

  const NumberOf numberOf = numbersOf(*model);
  std::unique_ptr<Output> output;
  if (options.json)
    output = std::make_unique<JsonOutput>(options.file.string(), numberOf, console.out);
  else
    output = std::make_unique<TextOutput>(numberOf, console.out);
  if (object)
    output->put({object, propertySetsOf(*object, numberOf)});
  else
    PropertiesWalk(*model, numberOf, console.out, *output).run();
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
