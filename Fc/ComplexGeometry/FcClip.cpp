#include "Fc/ComplexGeometry/FcClip.h"

namespace qor::fc {

// Cutting is the work of a processor of complex geometry; what can't be cut isn't drawn.
void FcClip::drawItemClipped(
    const std::shared_ptr<const resource::geometry::FcRepresentationItem>& /*item*/,
    const FcDrawParams& /*params*/) {}

}  // namespace qor::fc
