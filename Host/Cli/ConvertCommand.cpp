#include "Host/Cli/ConvertCommand.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <system_error>

#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelStreams.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/ProgressBar.h"
#include "Host/StepFile/StepWriter.h"

namespace qor::host::cli {

namespace {

step::WriteResult write(const step::ReadResult& model, const ConvertOptions& options,
                        Console& console) {
  ProgressBar bar("Writing", console);
  return writeModel(
      *model.data, options.output,
      {.header = model.header, .numbers = model.instances, .progress = bar.callback()}, console);
}

nlohmann::ordered_json replacedGuids(const step::ReadResult& model) {
  auto json = nlohmann::ordered_json::array();
  for (const step::ReplacedGuid& replaced : model.replacedGuids)
    json.push_back({{"instance", replaced.instance},
                    {"text", replaced.text},
                    {"guid", replaced.guid.toString(false)}});
  return json;
}

void print(const ConvertOptions& options, const step::ReadResult& model,
           const step::WriteResult& written, std::ostream& out) {
  const std::string schema = fmt::format("{}", fmt::join(model.header.schemas, ", "));
  if (options.json)
    out << toText({{"input", options.input.string()},
                   {"output", options.output.string()},
                   {"schema", schema},
                   {"instances", written.instances},
                   {"problems", countProblems(model) + written.notFinite},
                   {"replacedGuids", replacedGuids(model)}});
  else
    out << fmt::format("{}: {} instances written as IFC4X3_ADD2\n",
                       printable(options.output.string()), written.instances);
}

}  // namespace

ExitCode runConvert(const ConvertOptions& options, Console& console) {
  const auto model = loadModel(options.input, console, options.keepUnits);
  if (!model) return ExitCode::impossible;
  std::error_code ignored;  // set when there is no output yet
  const bool isWhole = model->problems.empty() && model->notes.empty();
  if (!isWhole && std::filesystem::equivalent(options.input, options.output, ignored))
    return refuse(console, fmt::format("{} isn't overwritten with itself: what has problems or "
                                       "no place would be lost; give another name for the output",
                                       inQuotes(options.input.string())));
  const step::WriteResult written = write(*model, options, console);
  if (!written.failure.empty())
    return refuse(console, fmt::format("can't write {}: {}", inQuotes(options.output.string()),
                                       printable(written.failure)));
  print(options, *model, written, reportStream(options.output, console));
  if (written.notFinite == 0) return exitCodeOf(*model);
  console.err << fmt::format("{}: {} numbers were infinite or none; left out.\n",
                             printable(options.output.string()), written.notFinite);
  return ExitCode::problems;
}

}  // namespace qor::host::cli
