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
  bool spaces = false;             ///< show spaces, which cover what is in them
  bool openings = false;           ///< show what openings cut out as bodies
  std::string view = "iso";        ///< of pictures: plan, front, side, iso
  std::string size = "1600x1200";  ///< of .png in pixels
  bool json = false;
};

/// `fctool draw`: a model as a mesh for other programs, or as a picture; with `trace` all calls
/// that a draw target gets, one a line.
///
/// Spaces and openings are hidden unless they are asked for, or a draw status is given, or one
/// entity.
///
/// Tells what was drawn; as JSON: "file", "objects" (those that drew something), "blocks",
/// "triangles", "lines", "texts" and "outputs".
ExitCode runDraw(const DrawOptions& options, Console& console);

}  // namespace qor::host::cli
