#pragma once

#include "Fc/Resource/GeometricModel/FcCartesianPointList3DAttributes.h"

namespace qor::fc::resource::geometricmodel {

/// IfcCartesianPointList3D, Resource.Geometric Model.
class QOR_API FcCartesianPointList3D : public FcCartesianPointList3DAttributes {
 public:
  std::size_t size() const override { return CoordList().size(); }
  math::Point3d point(std::size_t i) const override {
    return {CoordList()[i][0], CoordList()[i][1], CoordList()[i][2]};
  }
  std::vector<math::Point3d> points() const override;
  /// Replaces all points.
  void setPoints(const std::vector<math::Point3d>& points);
  void pushBackPoint(const math::Point3d& point);

  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometricmodel
