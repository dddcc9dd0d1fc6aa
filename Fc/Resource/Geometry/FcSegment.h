#pragma once

#include <optional>
#include <vector>

#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcSegmentAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSegment, Resource.Geometry: a piece of a composite curve.
class QOR_API FcSegment : public FcSegmentAttributes {
 public:
  /// The points of the piece in the direction of the composite curve. The base forms report that
  /// the class has none.
  virtual std::vector<math::Point3d> curve(const FcParams& params) const;
  virtual std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params) const;
  /// It lies in the XY plane: here, its parent does.
  virtual bool is2d() const;
  /// The curve that it is a piece of; null for none.
  virtual const FcCurve* parentCurve() const = 0;
  /// How the parameter of the composite curve runs over the piece: as that of its parent.
  virtual std::vector<std::pair<double, FcCurve::ParameterType>> parametricSegments() const;

 protected:
  FcSegment() = default;
};

}  // namespace qor::fc::resource::geometry
