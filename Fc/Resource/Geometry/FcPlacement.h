#pragma once

#include "Fc/Resource/Geometry/FcPlacementAttributes.h"

namespace qor::fc::resource::geometry {

class FcCartesianPoint;

/// IfcPlacement, Resource.Geometry: a place, to which the subclasses add directions.
class QOR_API FcPlacement : public FcPlacementAttributes {
 public:
  /// The frame in the plane: here, the translation by `Location`. An assert without one, which
  /// gives the identity, and for one that isn't planar.
  virtual math::Matrix2d transformation2dGet() const;
  /// Moves the placement in the plane. Stores a `Location` of dimension 2; one that isn't a
  /// cartesian point is replaced.
  virtual void transform2d(const math::Matrix2d& matrix);
  /// The frame in space: here, the translation by `Location`. An assert without one, which gives
  /// the identity, and for one of another dimension than 3.
  virtual math::Matrix transformationGet() const;

  /// Here, moves `Location` alone and stores it with dimension 3; one that isn't a cartesian point
  /// is replaced.
  void transform(const math::Matrix& matrix) override;

 protected:
  FcPlacement() = default;

  /// `Location` when it is a cartesian point; null for any other and for none.
  const FcCartesianPoint* locationPoint() const;
  /// The coordinates of `Location`; the origin when it isn't a cartesian point.
  math::Point3d location() const;
  /// Overwrites a cartesian point that is there, so that all that share it move; makes one where
  /// there is none.
  void writeLocation(const math::Point3d& point);
  void writeLocation(const math::Point2d& point);

 private:
  FcCartesianPoint& ownedLocation();
};

}  // namespace qor::fc::resource::geometry
