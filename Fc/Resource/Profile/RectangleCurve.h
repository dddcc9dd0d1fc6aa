#pragma once

#include <memory>

#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometry {
class FcIndexedPolyCurve;
}

namespace qor::fc::resource::profile {

/// A new closed curve of four lines around the origin of a frame, counter-clockwise from the lower
/// left corner. Dimensions in metres.
std::shared_ptr<geometry::FcIndexedPolyCurve> rectangleCurve(const math::Matrix2d& frame,
                                                             double xDim, double yDim);

}  // namespace qor::fc::resource::profile
