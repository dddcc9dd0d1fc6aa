#pragma once

#include "Fc/Resource/Geometry/FcGeometricRepresentationItemAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcGeometricRepresentationItem, Resource.Geometry: an item that is geometry itself.
class QOR_API FcGeometricRepresentationItem : public FcGeometricRepresentationItemAttributes {
 public:
  /// The box in the XY plane around a planar item. The base form reports that the class has none.
  virtual std::optional<math::Extent2d> planarBox(const FcParams& params) const;

 protected:
  FcGeometricRepresentationItem() = default;
};

}  // namespace qor::fc::resource::geometry
