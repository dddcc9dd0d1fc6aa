#include "Host/Cli/InfoCommand.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/UnitWords.h"
#include "Host/StepFile/Units/ModelUnits.h"

namespace qor::host::cli {

namespace {

std::map<std::string_view, std::uint64_t> countByClass(const step::ReadResult& model) {
  std::map<std::string_view, std::uint64_t> counts;
  for (const auto& entity : model.data->allEntities())
    ++counts[entity->classInfo().upperName.view()];
  return counts;
}

/// What makes SI of the numbers in a unit: ", factor 0.001". Nothing for units that no measure of
/// the schema has.
std::string conversionWords(const step::FileUnit& unit) {
  if (!unit.toSi) return step::kindOf(unit.unit.getEntity()).empty() ? "" : ", left as it is";
  if (unit.toSi->isIdentity()) return {};
  const std::string words = fmt::format(", factor {}", unit.toSi->scale());
  return unit.toSi->offset == 0 ? words : fmt::format("{}, offset {}", words, unit.toSi->offset);
}

std::string schemaOf(const step::ReadResult& model) {
  return printable(fmt::format("{}", fmt::join(model.header.schemas, ", ")));
}

void printHeader(const step::ReadResult& model, std::ostream& out) {
  const step::Header& header = model.header;
  const auto line = [&](std::string_view title, const std::string& text) {
    if (!text.empty()) out << fmt::format("{:<20}{}\n", title, printable(text));
  };
  const auto list = [](const std::vector<std::string>& texts) {
    return fmt::format("{}", fmt::join(texts, ", "));
  };
  line("Schema:", schemaOf(model));
  line("Name:", header.name);
  line("Description:", list(header.description));
  line("Time stamp:", header.timeStamp);
  line("Author:", list(header.author));
  line("Organization:", list(header.organization));
  line("Originating system:", header.originatingSystem);
  line("Preprocessor:", header.preprocessorVersion);
  line("Authorization:", header.authorization);
}

void printClasses(const step::ReadResult& model, std::ostream& out) {
  const auto counts = countByClass(model);
  out << fmt::format("\nEntities: {}, of classes: {}\n", model.data->size(), counts.size());
  for (const auto& [name, count] : counts) out << fmt::format("{:>10}  {}\n", count, name);
}

void printUnits(const step::ReadResult& model, std::ostream& out) {
  const std::vector<step::FileUnit>& units = model.units;
  out << (units.empty() ? "\nUnits: none\n" : "\nUnits:\n");
  const bool several = !units.empty() && units.front().assignment != units.back().assignment;
  for (const step::FileUnit& unit : units)
    out << fmt::format("  {}{}: {}{}\n", several ? fmt::format("#{} ", unit.assignment) : "",
                       printable(unitType(unit.unit)), printable(unitWords(unit.unit)),
                       conversionWords(unit));
}

nlohmann::ordered_json unitJson(const step::FileUnit& unit) {
  nlohmann::ordered_json json{{"assignment", unit.assignment},
                              {"type", unitType(unit.unit)},
                              {"unit", unitWords(unit.unit)},
                              {"factor", nullptr},
                              {"offset", nullptr}};
  if (unit.toSi) {
    json["factor"] = unit.toSi->scale();
    json["offset"] = unit.toSi->offset;
  }
  return json;
}

void printProblems(const step::ReadResult& model, std::ostream& out) {
  std::map<std::string_view, std::uint64_t> kinds;
  for (const step::Problem& problem : model.problems) kinds[nameOf(problem.kind)] += problem.count;
  out << (kinds.empty() ? "\nProblems: none\n"
                        : fmt::format("\nProblems: {}\n", countProblems(model)));
  for (const auto& [kind, count] : kinds) out << fmt::format("{:>10}  {}\n", count, kind);
}

nlohmann::ordered_json headerJson(const step::Header& header) {
  return {{"name", header.name},
          {"description", header.description},
          {"timeStamp", header.timeStamp},
          {"author", header.author},
          {"organization", header.organization},
          {"originatingSystem", header.originatingSystem},
          {"preprocessorVersion", header.preprocessorVersion},
          {"authorization", header.authorization}};
}

nlohmann::ordered_json problemJson(const step::Problem& problem) {
  return {{"kind", nameOf(problem.kind)},   {"class", problem.className},
          {"attribute", problem.attribute}, {"count", problem.count},
          {"instance", problem.instance},   {"line", problem.line},
          {"message", problem.message}};
}

void printJson(const InfoOptions& options, const step::ReadResult& model, std::ostream& out) {
  nlohmann::ordered_json json;
  json["file"] = options.file.string();
  json["schema"] = schemaOf(model);
  json["header"] = headerJson(model.header);
  json["entities"] = model.data->size();
  json["classes"] = nlohmann::ordered_json::object();
  for (const auto& [name, count] : countByClass(model)) json["classes"][std::string(name)] = count;
  json["units"] = nlohmann::ordered_json::array();
  for (const step::FileUnit& unit : model.units) json["units"].push_back(unitJson(unit));
  json["problems"] = nlohmann::ordered_json::array();
  for (const step::Problem& problem : model.problems)
    json["problems"].push_back(problemJson(problem));
  json["notes"] = nlohmann::ordered_json::array();
  for (const step::Problem& note : model.notes) json["notes"].push_back(problemJson(note));
  out << toText(json);
}

}  // namespace

ExitCode runInfo(const InfoOptions& options, Console& console) {
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  if (options.json) {
    printJson(options, *model, console.out);
  } else {
    console.out << fmt::format("{:<20}{}\n", "File:", printable(options.file.string()));
    printHeader(*model, console.out);
    printClasses(*model, console.out);
    printUnits(*model, console.out);
    printProblems(*model, console.out);
  }
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
