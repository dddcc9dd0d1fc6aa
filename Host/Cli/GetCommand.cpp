#include "Host/Cli/GetCommand.h"

#include <fmt/format.h>

#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string_view>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Host/Cli/AttributeValue.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/GuidOption.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/StepFile/EntityNumbers.h"

namespace qor::host::cli {

namespace {

/// Which entity is asked for.
struct Key {
  std::optional<Guid> guid{};
  std::uint64_t id = 0;
};

std::optional<std::uint64_t> idFromText(std::string_view text) {
  if (text.starts_with('#')) text.remove_prefix(1);
  std::uint64_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole ? std::optional(id) : std::nullopt;
}

std::optional<Key> keyOf(const GetOptions& options, Console& console) {
  if (!options.id.empty()) {
    if (const auto id = idFromText(options.id)) return Key{.id = *id};
    refuse(console, fmt::format("{} is no number of an instance", inQuotes(options.id)));
    return std::nullopt;
  }
  const std::optional<Guid> guid = guidFromText(options.guid, console);
  return guid ? std::optional(Key{.guid = guid}) : std::nullopt;
}

bool matches(const step::NumberedEntity& instance, const Key& key) {
  if (!key.guid) return instance.number == key.id;
  const auto* root = fc::fcCast<fc::core::kernel::FcRoot>(instance.entity.get());
  return root && root->GlobalId() == *key.guid;
}

/// The first instance that matches; null, after a line that says why, when there is none.
const step::NumberedEntity* find(const step::ReadResult& model, const Key& key,
                                 const GetOptions& options, Console& console) {
  const step::NumberedEntity* found = nullptr;
  for (const step::NumberedEntity& instance : model.instances) {
    if (!matches(instance, key)) continue;
    if (found)
      console.err << fmt::format("fctool: #{} has the same {} as #{}, which is shown\n",
                                 instance.number, key.guid ? "guid" : "number", found->number);
    else
      found = &instance;
  }
  const std::string file = inQuotes(options.file.string());
  if (!found && key.guid)
    refuse(console, fmt::format("{} has no entity with the guid {}", file, options.guid));
  else if (!found)
    refuse(console, fmt::format("{} has no instance #{}", file, key.id));
  else if (!found->entity)
    refuse(console, fmt::format("#{} of {} was left out of the model", key.id, file));
  return found && found->entity ? found : nullptr;
}

void printText(const fc::FcBase& entity, const NumberOf& numberOf, std::ostream& out) {
  const fc::ClassInfo& info = entity.classInfo();
  const auto line = [&](const fc::AttributeInfo& attribute) {
    const bool derived = !attribute.isInverse() && info.isDerived(attribute.name);
    const std::string text =
        valueText(valueOf(entity, attribute, numberOf), attribute, numberOf, "    ");
    out << fmt::format("  {}:{}{}\n", attribute.name, text.starts_with('\n') ? "" : " ",
                       derived ? "*" : text);
  };
  out << label(entity, numberOf(entity)) << "\n";
  info.forEachAttribute(line);
  out << "Inverse attributes:\n";
  info.forEachInverseAttribute(line);
}

void printJson(const std::string& file, const fc::FcBase& entity, const NumberOf& numberOf,
               std::ostream& out) {
  nlohmann::ordered_json json{{"file", file}};
  json.update(jsonLabel(entity, numberOf(entity)));
  const auto addTo = [&](const char* list) {
    json[list] = nlohmann::ordered_json::object();
    return [&, list](const fc::AttributeInfo& attribute) {
      json[list][std::string(attribute.name)] =
          valueJson(valueOf(entity, attribute, numberOf), numberOf);
    };
  };
  entity.classInfo().forEachAttribute(addTo("attributes"));
  entity.classInfo().forEachInverseAttribute(addTo("inverseAttributes"));
  out << toText(json);
}

}  // namespace

ExitCode runGet(const GetOptions& options, Console& console) {
  const std::optional<Key> key = keyOf(options, console);
  if (!key) return ExitCode::impossible;
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  const step::NumberedEntity* found = find(*model, *key, options, console);
  if (!found) return ExitCode::impossible;

  step::EntityNumbers numbers(*model->data, model->instances);
  const NumberOf numberOf = [&](const fc::FcBase& entity) { return numbers.numberOf(entity); };
  if (options.json)
    printJson(options.file.string(), *found->entity, numberOf, console.out);
  else
    printText(*found->entity, numberOf, console.out);
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
