#pragma once

#include <source_location>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcDrawParams;

namespace resource::geometry {
class FcRepresentationItem;
}

/// Draws the item as the face sets that the current complex geometry processor makes of it, on this
/// thread. Without a processor an assert, which names the place of the call, and nothing.
QOR_API void drawByProcessor(const resource::geometry::FcRepresentationItem& item,
                             const FcDrawParams& params,
                             const std::source_location& where = std::source_location::current());

}  // namespace qor::fc
