#pragma once

#include "Fc/Resource/Geometry/FcCompositeCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCompositeCurve, Resource.Geometry: segments end to end.
class QOR_API FcCompositeCurve : public FcCompositeCurveAttributes {
 public:
  /// The last segment ends where the first one begins, within the length tolerance. Evaluates both.
  bool isClosed(const FcParams& params) const override;
  /// All segments have a planar parent.
  bool is2d() const override;
  std::optional<std::vector<math::Point2d>> closedCurve2dGet(const FcParams& params) const override;
  /// Neither trims nor `reverse`: an assert and nothing. Segments that don't join are reported and
  /// joined by a straight line; a missing one is reported and left out.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// Those of all segments.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;
};

}  // namespace qor::fc::resource::geometry
