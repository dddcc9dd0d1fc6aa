#include "Host/Cli/TreeCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/ModelTree.h"

namespace qor::host::cli {

namespace {

/// Deeper nodes are told their depth instead of being moved to the right: a chain of a million
/// would take a terabyte of blanks.
constexpr std::size_t maxIndented = 40;

std::string indentation(std::size_t depth) {
  std::string blanks(2 * std::min(depth, maxIndented), ' ');
  return depth <= maxIndented ? blanks : fmt::format("{}({}) ", blanks, depth);
}

void printText(const fc::Data& data, const NumberOf& numberOf, std::ostream& out) {
  bool outside = false;
  walkModelTree(data, numberOf, [&](const TreeNode& node) {
    if (node.relation == TreeRelation::outside && !outside) {
      outside = true;
      out << "Outside of the project:\n";
    }
    out << indentation(node.depth + (outside ? 1 : 0))
        << label(*node.object, numberOf(*node.object))
        << (node.repeated ? " (shown above)\n" : "\n");
    return out.good();
  });
}

using Json = nlohmann::ordered_json;

void printJson(const std::string& file, const fc::Data& data, const NumberOf& numberOf,
               std::ostream& out) {
  out << "{\n  \"file\": " << toLine(file) << ",\n  \"nodes\": [";
  const char* separator = "\n";
  walkModelTree(data, numberOf, [&](const TreeNode& node) {
    Json json = jsonLabel(*node.object, numberOf(*node.object));
    json["depth"] = node.depth;
    json["parent"] = node.parent ? Json(numberOf(*node.parent)) : Json();
    json["relation"] = nameOf(node.relation);
    json["repeated"] = node.repeated;
    out << separator << "    " << toLine(json);
    separator = ",\n";
    return out.good();
  });
  out << "\n  ]\n}\n";
}

}  // namespace

ExitCode runTree(const TreeOptions& options, Console& console) {
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  const NumberOf numberOf = numbersOf(*model);
  if (options.json)
    printJson(options.file.string(), *model->data, numberOf, console.out);
  else
    printText(*model->data, numberOf, console.out);
  return exitCodeOf(*model);
}

}  // namespace qor::host::cli
