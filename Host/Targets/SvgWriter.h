#pragma once

#include <iosfwd>
#include <string>

#include "Host/Targets/Camera.h"
#include "Host/Targets/Scene.h"

namespace qor::host::targets {

/// Draws a scene with lines as SVG: lines and texts in their colours, surfaces by their edges in a
/// thin grey, with a title and a scale bar in metres. White, and 1600 wide by at most 1200 high as
/// the model wants it. Texts are upright or turned to their direction, and never too small to read.
void writeSvg(const Scene& scene, View view, const std::string& title, std::ostream& out);

}  // namespace qor::host::targets
