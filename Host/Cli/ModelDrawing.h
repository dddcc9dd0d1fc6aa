#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Fc/Tree/DrawStatus.h"
#include "Host/Cli/Console.h"
#include "Host/Cli/RepresentationChoice.h"
#include "Host/StepFile/StepReader.h"
#include "Qor/Draw/DrawInterface.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::host::cli {

/// What a person asks of a drawing, whatever it is for.
struct DrawingOptions {
  std::filesystem::path file{};
  std::string context{};           ///< identifier of representations; empty for what is normal
  std::string id{};                ///< number of one entity to draw; empty for all
  double chord = 2;                ///< millimetres between a circle and its segments
  std::string segments = "16,72";  ///< of a full circle, at least and at most
  std::filesystem::path status{};  ///< file of a draw status; empty for the default one
  bool noOpenings = false;         ///< draw bodies as they are before openings are cut out
  bool skipExpensive = false;      ///< leave out cuts by bodies that take the solid modeller long
  /// The product that is asked why it isn't seen, by its guid; empty for all, none for no question.
  std::optional<std::string> why{};
};

/// How finely curves are drawn; nothing, after a line that says why, when it can't be understood.
std::optional<math::CurveDiscretization> discretizationOf(const DrawingOptions& options,
                                                          Console& console);

/// A stored draw status, or the default one; nothing, after a line that says why, when the file
/// can't be read.
std::optional<fc::DrawStatus> readDrawStatus(const fc::Data& data,
                                             const std::filesystem::path& file, Console& console);

class DrawingReport;

/// Draws all projects and the products that none leads to, or the one entity that is asked for,
/// into a target, with a progress bar. `choice` may be null: then the draw status decides which
/// representations are drawn; otherwise the choice does, whatever contexts the status hides. The
/// report gets what becomes of each product. False, after a line that says why, when there is
/// nothing to start from, or what the options name isn't there.
bool drawModel(const step::ReadResult& model, const DrawingOptions& options,
               const fc::DrawStatus& status, RepresentationChoice* choice,
               generate::draw::DrawInterface& target, DrawingReport& report, Console& console);

}  // namespace qor::host::cli
