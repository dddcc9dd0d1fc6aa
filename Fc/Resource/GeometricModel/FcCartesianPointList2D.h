#pragma once

#include "Fc/Resource/GeometricModel/FcCartesianPointList2DAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcCartesianPointList2D, Resource.Geometric Model.
class QOR_API FcCartesianPointList2D : public FcCartesianPointList2DAttributes {
 public:
  std::size_t size() const override { return CoordList().size(); }
  math::Point2d point2d(std::size_t i) const { return {CoordList()[i][0], CoordList()[i][1]}; }
  math::Point3d point(std::size_t i) const override {
    return {CoordList()[i][0], CoordList()[i][1], 0};
  }
  std::vector<math::Point2d> points2d() const;
  std::vector<math::Point3d> points() const override;
  /// Replaces all points.
  void setPoints(const std::vector<math::Point2d>& points);
  void pushBackPoint(const math::Point2d& point);

  /// Drops the third coordinates that come out; an assert when the matrix leaves the plane.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometricmodel
