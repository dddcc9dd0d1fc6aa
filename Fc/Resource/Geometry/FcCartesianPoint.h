#pragma once

#include "Fc/Resource/Geometry/FcCartesianPointAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCartesianPoint, Resource.Geometry: a place with two or three coordinates, in metres.
class QOR_API FcCartesianPoint : public FcCartesianPointAttributes {
 public:
  /// How many coordinates are stored.
  std::size_t dimension() const { return Coordinates().size(); }
  /// Missing coordinates are 0.
  math::Point3d point() const { return {Coordinates()[0], Coordinates()[1], Coordinates()[2]}; }
  math::Point2d point2d() const { return {Coordinates()[0], Coordinates()[1]}; }
  /// Stores three coordinates.
  void setPoint(const math::Point3d& point) { setCoordinates({point.x, point.y, point.z}); }
  /// Stores two coordinates.
  void setPoint(const math::Point2d& point) { setCoordinates({point.x, point.y}); }
  /// Stores two coordinates when the third is within the length tolerance, else three.
  void setPointOfLeastDimension(const math::Point3d& point);

  /// A polyline of this one point.
  void draw(const FcDrawParams& params) const override;
  /// Stores two coordinates where the third vanishes, else three.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
};

/// A new point in no model, of dimension 3.
QOR_API std::shared_ptr<FcCartesianPoint> makePoint(const math::Point3d& point);
/// A new point in no model, of dimension 2.
QOR_API std::shared_ptr<FcCartesianPoint> makePoint(const math::Point2d& point);

}  // namespace qor::fc::resource::geometry
