#include "Host/Cli/GetCommand.h"

#include <fmt/format.h>

#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Host/Cli/AttributeValue.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/EntityOption.h"
#include "Host/Cli/LoadModel.h"

namespace qor::host::cli {

namespace {

/// Names the entities behind the first one with that guid.
void tellOthers(const step::ReadResult& model, const Guid& guid, std::ostream& err) {
  std::uint64_t shown = 0;
  for (const step::NumberedEntity& instance : model.instances) {
    const auto* root = fc::fcCast<fc::core::kernel::FcRoot>(instance.entity.get());
    if (!root || root->GlobalId() != guid) continue;
    if (shown == 0)
      shown = instance.number;
    else
      err << fmt::format("fctool: #{} has the same guid as #{}, which is shown\n", instance.number,
                         shown);
  }
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
  const auto id = options.id ? idFromText(*options.id, console) : std::nullopt;
  const auto guid = options.guid ? guidFromText(*options.guid, console) : std::nullopt;
  if (!id && !guid) return ExitCode::impossible;
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  const std::string file = options.file.string();
  const std::shared_ptr<fc::FcBase> found =
      id ? findEntity(*model, *id, file, console) : findRoot(*model, *guid, file, console);
  if (!found) return ExitCode::impossible;
  if (guid) tellOthers(*model, *guid, console.err);

  const NumberOf numberOf = numbersOf(*model);
  if (options.json)
    printJson(file, *found, numberOf, console.out);
  else
    printText(*found, numberOf, console.out);
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
