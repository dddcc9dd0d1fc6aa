#pragma once

#include "Fc/Resource/GeometricModel/FcCartesianPointListAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcCartesianPointList, Resource.Geometric Model: points of one dimension in one entity.
class QOR_API FcCartesianPointList : public FcCartesianPointListAttributes {
 public:
  virtual std::size_t size() const = 0;
  /// The point at a 0-based position below `size()`, at height 0 for points of the plane.
  virtual math::Point3d point(std::size_t i) const = 0;
  /// All points, at height 0 for points of the plane.
  virtual std::vector<math::Point3d> points() const = 0;

 protected:
  FcCartesianPointList() = default;
};

}  // namespace qor::fc::resource::geometricmodel
