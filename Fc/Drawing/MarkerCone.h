#pragma once

#include <memory>

#include "Qor/Draw/Color.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {
class FcDrawParams;
}

namespace qor::fc::utilities {

/// Draws a cone of one colour that stands on the XY plane of `frame`: a sign for people, made for
/// the moment and in no model. Metres.
void drawMarkerCone(const FcDrawParams& params, const math::Matrix& frame, double height,
                    double bottomRadius, const generate::draw::Color& color);

}  // namespace qor::fc::utilities
