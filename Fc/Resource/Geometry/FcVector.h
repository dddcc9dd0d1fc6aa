#pragma once

#include "Fc/Resource/Geometry/FcVectorAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcVector, Resource.Geometry: a direction with a length of its own.
class QOR_API FcVector : public FcVectorAttributes {
 public:
  /// `Orientation`, whatever its length, times `Magnitude`; zero without an orientation.
  math::Vector3d vector() const;
  /// Writes an orientation of length 1, of dimension 2 or 3, and the magnitude. An orientation that
  /// is there is overwritten; a vector without length keeps its orientation.
  void setVector(const math::Vector3d& vector, std::size_t dimension);

  /// Nothing is drawn.
  void draw(const FcDrawParams& params) const override;
  /// Turns and stretches it. Stored with dimension 2 where the third coordinate vanishes.
  void transform(const math::Matrix& matrix) override;
};

}  // namespace qor::fc::resource::geometry
