#pragma once

#include <cstddef>

#include "Host/Targets/Camera.h"
#include "Host/Targets/Scene.h"
#include "Qor/Image/Image.h"

namespace qor::host::targets {

/// A picture of all surfaces and lines of a scene on white, with shading, dark edges and what is
/// transparent as such. Texts are left out. White alone for an empty scene.
///
/// Takes 64 bytes a pixel, and time in proportion to pixels and triangles.
image::Image pictureOf(const Scene& scene, View view, std::size_t width, std::size_t height);

}  // namespace qor::host::targets
