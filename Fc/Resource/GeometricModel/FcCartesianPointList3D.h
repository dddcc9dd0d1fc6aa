#pragma once

#include "Fc/Resource/GeometricModel/CoordinateLookup.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3DAttributes.h"
#include "Fc/Resource/Measure/FcPositiveInteger.h"

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
  /// The position, from 1, of the first point that is equal in x, y and z, without a tolerance; a
  /// point that isn't there is appended. Constant time on average.
  measure::FcPositiveInteger addPoint(const math::Point3d& point);

  void setCoordList(CoordinateLookup::Coordinates value);
  bool setLocalValue(LocalValue value, const object::PropertyId& id) override;
  void transform(const math::Matrix& matrix) override;

 private:
  /// Made when a point is added; none after a change of the list by other ways.
  std::unique_ptr<CoordinateLookup> m_lookup;
};

}  // namespace qor::fc::resource::geometricmodel
