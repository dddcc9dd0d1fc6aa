#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Host/Cli/Console.h"
#include "Host/Cli/ModelDrawing.h"

namespace qor::host::cli {

struct DrawOptions : DrawingOptions {
  std::vector<std::filesystem::path> outputs{};  ///< each by its ending: .glb, .obj, .png, .svg
  bool trace = false;
  std::string view = "iso";        ///< of pictures: plan, front, side, iso
  std::string size = "1600x1200";  ///< of .png in pixels
  bool json = false;
};

/// `fctool draw`: a model as a mesh for other programs, or as a picture; with `trace` all calls
/// that a draw target gets, one a line.
///
/// Tells what was drawn; as JSON: "file", "objects" (those that drew something), "blocks",
/// "triangles", "lines", "texts" and "outputs".
ExitCode runDraw(const DrawOptions& options, Console& console);

}  // namespace qor::host::cli
