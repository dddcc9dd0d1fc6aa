#pragma once

#include "Fc/Resource/PresentationDefinition/FcAnnotationFillAreaAttributes.h"

namespace qor::fc::resource::presentationdefinition {

/// IfcAnnotationFillArea, Resource.Presentation Definition: the area within a closed curve, without
/// those within its inner boundaries.
class QOR_API FcAnnotationFillArea : public FcAnnotationFillAreaAttributes {
 public:
  /// As a polygon with holes. An assert without an outer boundary; an inner one without points is
  /// left out.
  void draw(const FcDrawParams& params) const override;
  void transform(const math::Matrix& matrix) override;
  /// That of the outer boundary.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;
};

}  // namespace qor::fc::resource::presentationdefinition
