#include "Host/Cli/StatusCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string_view>
#include <variant>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Factory.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Tree/DrawStatus.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelDrawing.h"
#include "Host/Cli/OutputFile.h"
#include "Host/Cli/PrintableText.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::host::cli {

namespace {

using fc::core::kernel::FcRoot;
using fc::resource::representation::FcGeometricRepresentationContext;
using Keys = fc::DrawStatus::StateSet;

/// A class with its subclasses, as far as they can have instances; empty for an unknown name.
Keys classKeys(std::string_view name) {
  Keys keys;
  for (const fc::ClassInfo* info : fc::Factory::classes()) {
    if (!equalsIgnoreCase(info->name.view(), name)) continue;
    for (const fc::ClassInfo* candidate : fc::Factory::classes())
      if (info->contains(candidate->classId) && !candidate->isAbstract())
        keys.emplace(std::type_index(*candidate->type));
  }
  return keys;
}

/// What a word on the command line means: a class or a guid. Nothing, after a line that says why,
/// when it is neither.
Keys keysOf(const fc::Data& data, const std::string& word, Console& console) {
  Keys keys = classKeys(word);
  Guid guid;
  if (!keys.empty()) return keys;
  if (!guid.boSet(word)) {
    refuse(console, fmt::format("{} is neither a class nor a guid", inQuotes(word)));
  } else if (const auto root = data.entityByGuid(guid)) {
    keys.emplace(static_cast<const FcRoot*>(root.get()));
  } else {
    refuse(console, fmt::format("the file has no entity with the guid {}", word));
  }
  return keys;
}

/// One thing that is hidden, as JSON.
struct JsonOfKey {
  nlohmann::ordered_json operator()(const FcRoot* root) const {
    return {{"class", root->ifcNameUpper()},
            {"globalId", root->GlobalId().toString(false)},
            {"name", printable(root->Name().value_or(""))}};
  }
  nlohmann::ordered_json operator()(const FcGeometricRepresentationContext* context) const {
    return {{"context", printable(context->ContextIdentifier().value_or(""))},
            {"type", printable(context->ContextType().value_or(""))}};
  }
  nlohmann::ordered_json operator()(const std::type_index& type) const {
    return {{"class", fc::Factory::getFcClasses().at(type).view()}};
  }
};

std::string textOf(const nlohmann::ordered_json& key) {
  const auto at = [&](const char* name) { return key[name].get<std::string>(); };
  if (key.contains("context")) return fmt::format("context {} of {}", at("context"), at("type"));
  if (key.contains("globalId"))
    return fmt::format("{} '{}' {}", at("class"), at("name"), at("globalId"));
  return at("class");
}

void print(const StatusOptions& options, const fc::DrawStatus& status, std::ostream& out) {
  std::vector<nlohmann::ordered_json> disabled;
  for (const fc::DrawStatus::StateKey& key : status.getDisabledStates())
    disabled.push_back(std::visit(JsonOfKey(), key));
  // The order of the keys is that of addresses, which differs from run to run.
  std::sort(disabled.begin(), disabled.end(),
            [](const auto& a, const auto& b) { return textOf(a) < textOf(b); });
  if (options.json) {
    out << toText({{"file", options.file.string()}, {"disabled", disabled}});
    return;
  }
  out << fmt::format("Hidden: {}\n", disabled.size());
  for (const auto& key : disabled) out << fmt::format("  {}\n", textOf(key));
}

bool write(const fc::DrawStatus& status, const std::filesystem::path& path, Console& console) {
  return writeFile(path, console, [&](std::ostream& out) {
    status.serialize(out);
    return true;
  });
}

}  // namespace

ExitCode runStatus(const StatusOptions& options, Console& console) {
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  auto status = readDrawStatus(*model->data, options.status, console);
  if (!status) return ExitCode::impossible;
  for (const std::string& word : options.disable) {
    const Keys keys = keysOf(*model->data, word, console);
    if (keys.empty()) return ExitCode::impossible;
    status->setEnabled(keys, false);
  }
  if (!options.write.empty() && !write(*status, options.write, console))
    return ExitCode::impossible;
  print(options, *status, console.out);
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
