#pragma once

#include <iosfwd>

#include "Host/Targets/Scene.h"

namespace qor::host::targets {

/// Writes a scene as binary glTF 2.0, which web viewers and modelling programs open.
///
/// A node for each object that draws something or leads to one that does, under the node of its
/// parent, with "GlobalId" and "class" in its extras. Blocks become meshes that their uses share.
/// Metres, Y up. Where coordinates are large, whole metres of them are the offset of the root node,
/// and each mesh lies near its own origin, so that the format's short numbers lose nothing that
/// shows. Texts are left out. False when the scene doesn't fit into the format's four gigabytes, or
/// the stream takes no more.
bool writeGlb(const Scene& scene, std::ostream& out);

}  // namespace qor::host::targets
