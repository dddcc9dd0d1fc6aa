#include "Host/Cli/DrawingReport.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <array>
#include <nlohmann/json.hpp>
#include <unordered_set>

#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"

namespace qor::host::cli {

namespace {

using fc::DrawOutcome;
using fc::core::kernel::FcProduct;

struct OutcomeWords {
  const char* name;
  const char* text;  ///< of one product and of many
};

/// By the number of the outcome; behind them that of a product that no walk comes by.
constexpr std::array<OutcomeWords, 10> outcomeWords{{
    {"drawn", "drawn"},
    {"hidden", "hidden by the draw status"},
    {"filtered", "filtered out"},
    {"noRepresentation", "without a representation"},
    {"otherContexts", "with representations of other contexts only"},
    {"unknownIdentifier", "with a representation whose identifier isn't known"},
    {"noBody", "with items that show nothing"},
    {"cutAway", "cut away whole by openings"},
    {"failed", "failed"},
    {"notReached", "that nothing leads to"},
}};
constexpr std::size_t notReached = outcomeWords.size() - 1;
static_assert(static_cast<std::size_t>(DrawOutcome::failed) + 1 == notReached);

std::size_t outcomeNumber(const fc::DrawOutcomes::Entry* entry) {
  return entry ? static_cast<std::size_t>(entry->outcome) : notReached;
}

std::string identifiersOf(const FcProduct& product) {
  std::vector<std::string> identifiers;
  for (const auto& representation : product.Representation()->Representations())
    if (representation)
      identifiers.push_back(representation->RepresentationIdentifier()
                                ? inQuotes(*representation->RepresentationIdentifier())
                                : std::string("one without an identifier"));
  return fmt::format("{}", fmt::join(identifiers, ", "));
}

std::string reportsOf(const fc::DrawOutcomes::Entry& entry) {
  const std::string first = printable(entry.firstReport);
  return entry.reports == 1 ? first : fmt::format("{}, and {} more", first, entry.reports - 1);
}

std::string outcomeText(const FcProduct& product, const fc::DrawOutcomes::Entry* entry) {
  std::string text = outcomeWords[outcomeNumber(entry)].text;
  if (!entry) return text;
  if (entry->outcome == DrawOutcome::otherContexts ||
      entry->outcome == DrawOutcome::unknownIdentifier)
    text += ": " + identifiersOf(product);
  if (entry->reports > 0) text += ": " + reportsOf(*entry);
  return text;
}

}  // namespace

/// In the order of the walk; behind them those that it didn't come by, when it was for all.
void DrawingReport::forEachProduct(const Visitor& visit) const {
  std::unordered_set<const FcProduct*> met;
  for (const auto& entry : m_outcomes.entries()) {
    visit(*entry.product, &entry);
    met.insert(entry.product);
  }
  if (!m_options.id.empty()) return;
  for (const std::shared_ptr<FcProduct> product : m_model.data->entities<FcProduct>())
    if (!met.contains(product.get())) visit(*product, nullptr);
}

void DrawingReport::forEachAskedFor(const Visitor& visit) const {
  if (!m_options.why) return;
  Guid guid;
  const bool isOne = guid.boSet(*m_options.why);
  forEachProduct([&](const FcProduct& product, Found found) {
    if (isOne ? product.GlobalId() == guid : outcomeNumber(found) != 0) visit(product, found);
  });
}

void DrawingReport::printWhy(std::ostream& out) const {
  const NumberOf number = numbersOf(m_model);
  forEachAskedFor([&](const FcProduct& product, Found found) {
    out << fmt::format("{} {}: {}\n", label(product, number(product)),
                       product.GlobalId().toString(false), outcomeText(product, found));
  });
}

nlohmann::ordered_json DrawingReport::why() const {
  const NumberOf number = numbersOf(m_model);
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  forEachAskedFor([&](const FcProduct& product, Found found) {
    nlohmann::ordered_json one = jsonLabel(product, number(product));
    one["outcome"] = outcomeWords[outcomeNumber(found)].name;
    one["text"] = outcomeText(product, found);
    one["reports"] = found ? found->reports : 0;
    all.push_back(std::move(one));
  });
  return all;
}

ExitCode DrawingReport::end(std::ostream& err) const {
  std::array<std::size_t, outcomeWords.size()> counts{};
  std::size_t products = 0;
  bool hasShapes = false;
  forEachProduct([&](const FcProduct& product, Found found) {
    ++products;
    ++counts[outcomeNumber(found)];
    hasShapes = hasShapes || product.Representation();
  });
  if (products == 0) return exitCodeOf(m_model);
  std::vector<std::string> parts;
  for (std::size_t i = 0; i < counts.size(); ++i)
    if (counts[i] > 0) parts.push_back(fmt::format("{} {}", counts[i], outcomeWords[i].text));
  const bool isNothing = counts.front() == 0;
  err << fmt::format("fctool: {}{} product{}: {}{}\n", isNothing ? "nothing was drawn of " : "",
                     products, products == 1 ? "" : "s", fmt::join(parts, ", "),
                     isNothing && !m_options.why ? "; --why tells it of each" : "");
  return isNothing && hasShapes ? ExitCode::problems : exitCodeOf(m_model);
}

}  // namespace qor::host::cli
