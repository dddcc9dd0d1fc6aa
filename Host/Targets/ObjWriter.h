#pragma once

#include <iosfwd>
#include <string>

#include "Host/Targets/Scene.h"

namespace qor::host::targets {

/// Writes the surfaces of a scene as Wavefront OBJ: an object for each one that has any, in project
/// coordinates, metres with six decimals, Z up. Its materials go to `materials`, which must become
/// a file named `materialFile` beside it. Lines and texts are left out; blocks are written out
/// wherever they are used.
void writeObj(const Scene& scene, const std::string& materialFile, std::ostream& out,
              std::ostream& materials);

}  // namespace qor::host::targets
