#pragma once

#include "Fc/Resource/Geometry/FcSpiralAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcSpiral, Resource.Geometry. It has no points.
class QOR_API FcSpiral : public FcSpiralAttributes {
 public:
  /// An assert, and none.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

 protected:
  FcSpiral() = default;
};

}  // namespace qor::fc::resource::geometry
