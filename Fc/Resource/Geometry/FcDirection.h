#pragma once

#include "Fc/Resource/Geometry/FcDirectionAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcDirection, Resource.Geometry: a direction of any length with two or three ratios.
class QOR_API FcDirection : public FcDirectionAttributes {
 public:
  /// How many ratios are stored.
  std::size_t dimension() const { return DirectionRatios().size(); }
  /// As stored, not normalized; missing ratios are 0.
  math::Vector3d vector() const {
    return {DirectionRatios()[0], DirectionRatios()[1], DirectionRatios()[2]};
  }
  math::Vector2d vector2d() const { return {DirectionRatios()[0], DirectionRatios()[1]}; }
  /// Stores three ratios, not normalized.
  void setVector(const math::Vector3d& vector) {
    setDirectionRatios({vector.x, vector.y, vector.z});
  }
  /// Stores two ratios, not normalized.
  void setVector(const math::Vector2d& vector) { setDirectionRatios({vector.x, vector.y}); }
};

/// A new direction in no model, of dimension 3.
QOR_API std::shared_ptr<FcDirection> makeDirection(const math::Vector3d& vector);
/// A new direction in no model, of dimension 2.
QOR_API std::shared_ptr<FcDirection> makeDirection(const math::Vector2d& vector);

}  // namespace qor::fc::resource::geometry
