#pragma once

#include <memory>

#include "Fc/Resource/GeometricModel/FcGeometricSetSelectAlternatives.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::resource::geometry {
class FcGeometricRepresentationItem;
}

namespace qor::fc::resource::geometricmodel {

/// IfcGeometricSetSelect, Resource.Geometric Model: a curve, a point or a surface.
class QOR_API FcGeometricSetSelect : public FcGeometricSetSelectAlternatives {
 public:
  using FcGeometricSetSelectAlternatives::FcGeometricSetSelectAlternatives;

  /// The item of any kind; null for none.
  std::shared_ptr<geometry::FcGeometricRepresentationItem> item() const;
  /// Moves the item, if there is one.
  void transform(const math::Matrix& matrix) const;
};

}  // namespace qor::fc::resource::geometricmodel
