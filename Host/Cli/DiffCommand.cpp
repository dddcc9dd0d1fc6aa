#include "Host/Cli/DiffCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <utility>

#include "Host/Cli/AttributeValue.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelDiff.h"

namespace qor::host::cli {

namespace {

using Json = nlohmann::ordered_json;

/// One of the two models with the numbers of its entities.
class Side {
 public:
  explicit Side(const step::ReadResult& model) : m_numberOf(numbersOf(model)) {}

  std::string text(const fc::FcBase& entity, const fc::AttributeInfo& attribute) const {
    constexpr std::size_t maxLength = 100;
    std::string text =
        valueText(valueOf(entity, attribute, m_numberOf), attribute, m_numberOf, " ");
    text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
    if (text.size() <= maxLength) return text;
    std::size_t end = maxLength;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
    return text.substr(0, end) + "...";
  }
  Json json(const fc::FcBase& entity, const fc::AttributeInfo& attribute) const {
    return valueJson(valueOf(entity, attribute, m_numberOf), m_numberOf);
  }
  std::string label(const ModelDiff::Root& root) const {
    return fmt::format("{} {}", cli::label(*root, m_numberOf(*root)),
                       root->GlobalId().toString(false));
  }
  Json jsonLabel(const ModelDiff::Root& root) const {
    return cli::jsonLabel(*root, m_numberOf(*root));
  }

 private:
  NumberOf m_numberOf;
};

void printText(const ModelDiff& diff, const Side& before, const Side& after, std::ostream& out) {
  out << fmt::format("Added: {}\n", diff.added().size());
  for (const auto& root : diff.added()) out << "  + " << after.label(root) << "\n";
  out << fmt::format("Removed: {}\n", diff.removed().size());
  for (const auto& root : diff.removed()) out << "  - " << before.label(root) << "\n";
  out << fmt::format("Changed: {}\n", diff.changed().size());
  for (const ModelDiff::Changed& changed : diff.changed()) {
    out << "  * " << after.label(changed.after) << "\n";
    if (changed.attributes.empty())
      out << fmt::format("      class: {} -> {}\n", changed.before->ifcNameUpper(),
                         changed.after->ifcNameUpper());
    for (const AttributeDiff& each : changed.attributes)
      out << fmt::format("      {}: {} -> {}\n", each.path, before.text(*each.before, *each.place),
                         after.text(*each.after, *each.place));
  }
}

void printJson(const DiffOptions& options, const ModelDiff& diff, const Side& before,
               const Side& after, std::ostream& out) {
  Json json{{"before", options.before.string()},
            {"after", options.after.string()},
            {"added", Json::array()},
            {"removed", Json::array()},
            {"changed", Json::array()}};
  for (const auto& root : diff.added()) json["added"].push_back(after.jsonLabel(root));
  for (const auto& root : diff.removed()) json["removed"].push_back(before.jsonLabel(root));
  for (const ModelDiff::Changed& changed : diff.changed()) {
    Json attributes = Json::array();
    for (const AttributeDiff& each : changed.attributes)
      attributes.push_back({{"name", each.attribute->name},
                            {"path", each.path},
                            {"before", before.json(*each.before, *each.place)},
                            {"after", after.json(*each.after, *each.place)}});
    json["changed"].push_back({{"before", before.jsonLabel(changed.before)},
                               {"after", after.jsonLabel(changed.after)},
                               {"attributes", std::move(attributes)}});
  }
  out << toText(json);
}

}  // namespace

ExitCode runDiff(const DiffOptions& options, Console& console) {
  const auto before = loadModel(options.before, console);
  if (!before) return ExitCode::impossible;
  const auto after = loadModel(options.after, console);
  if (!after) return ExitCode::impossible;
  const ModelDiff diff(before->instances, after->instances);
  const Side sideBefore(*before);
  const Side sideAfter(*after);
  if (options.json)
    printJson(options, diff, sideBefore, sideAfter, console.out);
  else
    printText(diff, sideBefore, sideAfter, console.out);
  return std::max(exitCodeOf(*before), exitCodeOf(*after));
}

}  // namespace qor::host::cli
