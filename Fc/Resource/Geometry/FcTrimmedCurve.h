#pragma once

#include "Fc/Resource/Geometry/FcTrimmedCurveAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcTrimmedCurve, Resource.Geometry: the part of a basis curve between two points or parameters.
///
/// Of two ways in which an end is given, `MasterRepresentation` chooses.
class QOR_API FcTrimmedCurve : public FcTrimmedCurveAttributes {
 public:
  bool isClosed(const FcParams& params) const override;
  bool is2d() const override;
  /// Neither further trims nor `reverse`: an assert and nothing.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// One length of 1.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

  /// That of the whole basis curve.
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;

 private:
  bool validateAttributes() const;
  const FcTrimmingSelect& chosen(const std::vector<FcTrimmingSelect>& trims) const;
};

}  // namespace qor::fc::resource::geometry
