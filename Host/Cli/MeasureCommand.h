#pragma once

#include "Host/Cli/Console.h"
#include "Host/Cli/ModelDrawing.h"

namespace qor::host::cli {

struct MeasureOptions : DrawingOptions {
  bool json = false;
};

/// `fctool measure`: box, area and volume of each product that draws surfaces: those of its body,
/// or of the representations that are asked for.
///
/// As JSON: "file" and "products", each with "globalId", "class", "name", "min" and "max" (corners
/// of its box), "area", "volume", "triangles" and "closed". In metres, in project coordinates. The
/// volume means nothing unless the triangles are closed.
ExitCode runMeasure(const MeasureOptions& options, Console& console);

}  // namespace qor::host::cli
