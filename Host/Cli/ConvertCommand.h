#pragma once

#include <filesystem>

#include "Host/Cli/Console.h"

namespace qor::host::cli {

struct ConvertOptions {
  std::filesystem::path input{};
  std::filesystem::path output{};
  bool keepUnits = false;  ///< numbers and units as the input has them, instead of SI
  bool json = false;
};

/// `fctool convert`: reads a file of any schema that the reader knows and writes it as IFC4X3_ADD2,
/// with its header, its numbering and its order, in SI units or those of the input. The output is
/// replaced at once or not at all, and may thus be the input; but not when the input has problems,
/// or values without a place in IFC4X3_ADD2, since what was left out would be lost.
///
/// As JSON: "input", "output", "schema" (of the input), "instances" (written), "problems" (how
/// many) and "replacedGuids" (what stood where a guid belongs: "instance", "text" as the input has
/// it, and the "guid" that was written).
ExitCode runConvert(const ConvertOptions& options, Console& console);

}  // namespace qor::host::cli
