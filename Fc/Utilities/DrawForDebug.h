#pragma once

#include "Qor/Platform/Export.h"

namespace qor::fc {
class FcBase;
class FcDrawParams;
}  // namespace qor::fc

namespace qor::fc::utilities {

/// Shows any entity that has something to show: items as they draw themselves, representations item
/// by item, points as spheres of `pointRadius` metres, placements as three arrows (X red, Y green,
/// Z blue), planes by their position. For developers.
QOR_API void drawForDebug(const FcDrawParams& params, const FcBase& entity, double pointRadius);

}  // namespace qor::fc::utilities
