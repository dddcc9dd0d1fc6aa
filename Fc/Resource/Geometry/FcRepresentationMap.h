#pragma once

#include <optional>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcRepresentationMapAttributes.h"
#include "Qor/Math/Extent.h"

namespace qor::fc {
class FcDrawParams;
class FcGenerateParams;
class FcParams;
}  // namespace qor::fc

namespace qor::fc::resource::geometry {

/// IfcRepresentationMap, Resource.Geometry: a representation that is used in several places.
/// Without `MappedRepresentation` it is nothing.
class QOR_API FcRepresentationMap : public FcRepresentationMapAttributes {
 public:
  /// The mapped representation in the frame of `MappingOrigin`.
  void draw(const FcDrawParams& params) const;
  /// The same as part of a walk, unless the draw status has its context off.
  void generate(FcGenerateParams& params) const;
  std::optional<math::Extent> boundingBox(const FcParams& params) const;
  /// Those of the mapped representation in the frame of `MappingOrigin`.
  std::vector<TopoDS_Shape> ocRepresentation(const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometry
