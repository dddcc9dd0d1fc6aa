#pragma once

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <ostream>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Drawing/DrawOutcomes.h"
#include "Host/Cli/AttributeValue.h"
#include "Host/Cli/Console.h"
#include "Host/Cli/ModelDrawing.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// What became of the products of one drawing: how many were drawn, and why the others weren't.
class DrawingReport {
 public:
  /// Both outlive this. The options say for whom a reason is asked.
  DrawingReport(const step::ReadResult& model, const DrawingOptions& options)
      : m_model(model), m_options(options) {}

  /// What the walk fills.
  fc::DrawOutcomes& outcomes() { return m_outcomes; }

  /// A line for each product that wasn't drawn, or for the one that is asked for: "#12 IFCWALL
  /// 'South wall' 1ND...: hidden by the draw status". Nothing unless `why` is among the options.
  void printWhy(std::ostream& out) const;
  /// The same for programs, each with "id", "class", "guid", "name", "outcome" (the name of the
  /// enumerator, or "notReached"), "text", and "reports", their number.
  nlohmann::ordered_json why() const;

  /// Writes one line that counts the products by what became of them. `problems` when nothing was
  /// drawn although there was something to draw, or when the file has some.
  ExitCode end(std::ostream& err) const;

 private:
  /// Nothing for a product that the walk didn't come by.
  using Found = const fc::DrawOutcomes::Entry*;
  using Visitor = std::function<void(const fc::core::kernel::FcProduct&, Found)>;

  void forEachProduct(const Visitor& visit) const;
  void forEachAskedFor(const Visitor& visit) const;

  const step::ReadResult& m_model;
  const DrawingOptions& m_options;
  fc::DrawOutcomes m_outcomes;
};

}  // namespace qor::host::cli
