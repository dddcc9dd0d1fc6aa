#pragma once

#include "Fc/Resource/Geometry/FcConicAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcConic, Resource.Geometry: a curve in the XY plane of its position.
class QOR_API FcConic : public FcConicAttributes {
 public:
  /// One angle of 2π.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

  /// Moves and turns `Position`, which becomes a new placement. An assert, and no change, for a
  /// matrix that scales.
  void transform(const math::Matrix& matrix) override;

 protected:
  FcConic() = default;
};

}  // namespace qor::fc::resource::geometry
