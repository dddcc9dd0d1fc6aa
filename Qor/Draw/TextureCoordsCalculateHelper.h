#pragma once

#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

namespace textureCoordsCalculateHelper {

/// Where a point lies on an image that is wrapped once around the Z axis: first the turn from the X
/// axis, counter-clockwise, from 0 up to 1; then the height as a part of `height`. On the axis the
/// turn is 0; without a height that isn't 0 the second is 0.
QOR_API TextureCoordinate generateCylindricalTextureCoordinate(const math::Point3d& point,
                                                               double height);

}  // namespace textureCoordsCalculateHelper

/// Multiplies each by the matrix, as when an image is to repeat several times around a cylinder.
QOR_API void transformCylindricalTextureCoordinates(std::vector<TextureCoordinate>& coordinates,
                                                    const math::Matrix2d& matrix);

}  // namespace qor::generate::draw
