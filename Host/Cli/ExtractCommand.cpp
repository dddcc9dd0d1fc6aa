#include "Host/Cli/ExtractCommand.h"

#include <fmt/format.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/EntityOption.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelExtract.h"
#include "Host/Cli/ModelStreams.h"
#include "Host/Cli/PrintableText.h"
#include "Host/StepFile/StepWriter.h"

namespace qor::host::cli {

using fc::core::kernel::FcObjectDefinition;

namespace {

/// Empty, after a line that says why, when one of them can't be found.
std::optional<std::vector<ModelExtract::Object>> objectsOf(const step::ReadResult& model,
                                                           const std::vector<Guid>& guids,
                                                           const std::string& file,
                                                           Console& console) {
  std::vector<ModelExtract::Object> objects;
  for (const Guid& guid : guids) {
    const auto root = findRoot(model, guid, file, console);
    if (!root) return std::nullopt;
    objects.push_back(fc::fcCast<FcObjectDefinition>(root));
    if (objects.back()) continue;
    refuse(console, fmt::format("{} is the guid of an {}, and not of an object",
                                guid.toString(false), root->ifcNameUpper()));
    return std::nullopt;
  }
  return objects;
}

}  // namespace

ExitCode runExtract(const ExtractOptions& options, Console& console) {
  std::vector<Guid> guids;
  for (const std::string& text : options.guids) {
    const auto guid = guidFromText(text, console);
    if (!guid) return ExitCode::impossible;
    guids.push_back(*guid);
  }
  const auto model = loadModel(options.input, console);
  if (!model) return ExitCode::impossible;
  const auto objects = objectsOf(*model, guids, options.input.string(), console);
  if (!objects) return ExitCode::impossible;

  const ModelExtract extract(model->instances, *objects);
  const auto numbers = extract.numbers();
  const step::WriteResult written = writeModel(
      *extract.data(), options.output, {.header = model->header, .numbers = numbers}, console);
  if (!written.failure.empty())
    return refuse(console, fmt::format("can't write {}: {}", inQuotes(options.output.string()),
                                       printable(written.failure)));
  std::ostream& out = reportStream(options.output, console);
  if (options.json)
    out << toText({{"input", options.input.string()},
                   {"output", options.output.string()},
                   {"instances", written.instances}});
  else
    out << fmt::format("{}: {} of {} instances written\n", printable(options.output.string()),
                       written.instances, model->data->size());
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
