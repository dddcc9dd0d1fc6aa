#include "Qor/Draw/TextureCoordsCalculateHelper.h"

#include <cmath>
#include <numbers>

namespace qor::generate::draw {

TextureCoordinate textureCoordsCalculateHelper::generateCylindricalTextureCoordinate(
    const math::Point3d& point, double height) {
  const double turn = std::atan2(point.y, point.x) / (2 * std::numbers::pi);
  const auto around = static_cast<float>(turn < 0 ? turn + 1 : turn);
  return {around < 1 ? around : 0, static_cast<float>(height != 0 ? point.z / height : 0)};
}

void transformCylindricalTextureCoordinates(std::vector<TextureCoordinate>& coordinates,
                                            const math::Matrix2d& matrix) {
  for (TextureCoordinate& coordinate : coordinates) {
    const math::Point2d moved = math::Point2d(coordinate[0], coordinate[1]) * matrix;
    coordinate = {static_cast<float>(moved.x), static_cast<float>(moved.y)};
  }
}

}  // namespace qor::generate::draw
