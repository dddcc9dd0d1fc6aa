#pragma once

#include <string>
#include <vector>

#include "Host/Cli/Console.h"
#include "Host/Cli/ModelDrawing.h"

namespace qor::host::cli {

struct MeasureOptions : DrawingOptions {
  bool surfaces = false;                ///< outlines of the planar faces of bodies
  std::vector<std::string> distance{};  ///< two guids, or none
  bool json = false;
};

/// `fctool measure`: box, area and volume of each product that draws surfaces: those of its body,
/// or of the representations that are asked for.
///
/// As JSON: "file" and "products", each with "globalId", "class", "name", "min" and "max" (corners
/// of its box), "area", "volume", "triangles" and "closed". In metres, in project coordinates. The
/// volume means nothing unless the triangles are closed.
///
/// With `surfaces`: "products", each with "globalId", "class", "name" and "surfaces", which are
/// lists of points in project coordinates. With `distance`: "distance" in metres, null where one of
/// the two has no body.
ExitCode runMeasure(const MeasureOptions& options, Console& console);

}  // namespace qor::host::cli
