#pragma once

#include "Fc/Resource/Geometry/FcLineAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcLine, Resource.Geometry: an endless line, evaluated from `Pnt` over the length of `Dir`.
class QOR_API FcLine : public FcLineAttributes {
 public:
  bool isClosed(const FcParams& params) const override;
  /// Point and direction have no third coordinate.
  bool is2d() const override;
  /// Two points. A trim is a point or a multiple of `Dir` from `Pnt`.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// One length of 1.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

  /// An assert when point and direction are of different dimensions, which is drawn all the same.
  void draw(const FcDrawParams& params) const override;
  /// Stored with dimension 2 where both third coordinates vanish, else with dimension 3.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometry
