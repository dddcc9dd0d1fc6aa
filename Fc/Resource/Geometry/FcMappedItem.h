#pragma once

#include "Fc/Resource/Geometry/FcMappedItemAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcMappedItem, Resource.Geometry: a representation map put to a place.
///
/// A map that comes to lie within itself is cut there, with the assert "Circular dependency in
/// mapped item", and so are maps that lie within each other a few hundred deep: what lies before
/// the cut is drawn and measured. Each thread knows the maps that it is in, so that several may
/// draw one item.
class QOR_API FcMappedItem : public FcMappedItemAttributes {
 public:
  /// A target that keeps blocks gets the map as a block, filled once, and the place as the frame
  /// around it. Without `MappingSource` nothing is drawn, without `MappingTarget` in place.
  void draw(const FcDrawParams& params) const override;
  /// Moves `MappingTarget`; the map stays as it is.
  void transform(const math::Matrix& matrix) override;
  /// That of the map's box times the place, which may be larger than what is drawn; empty unless
  /// there are both.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;

 private:
  void drawMap(const FcDrawParams& params) const;
};

}  // namespace qor::fc::resource::geometry
