#pragma once

#include <optional>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/GeometricModel/FcBooleanOperandAlternatives.h"
#include "Qor/Math/Extent.h"

namespace qor::fc {
class FcParams;
}
namespace qor::fc::resource::geometry {
class FcGeometricRepresentationItem;
class FcRepresentationItem;
}  // namespace qor::fc::resource::geometry

namespace qor::fc::resource::geometricmodel {

class FcSweptAreaSolid;

/// IfcBooleanOperand, Resource.Geometric Model: what a boolean operation works on.
///
/// Each operation that ends in `Assert` gives the item of its alternative, and null with an assert
/// when another one is current or the item is missing.
class QOR_API FcBooleanOperand : public FcBooleanOperandAlternatives {
 public:
  using FcBooleanOperandAlternatives::FcBooleanOperandAlternatives;

  /// The first alternative that the item fits, in the order: solid model, half-space solid, CSG
  /// primitive, boolean result, tessellated face set. Not set for any other item and for null.
  static FcBooleanOperand fromRepresentationItem(
      const std::shared_ptr<geometry::FcRepresentationItem>& item);

  bool isHalfSpaceSolid() const { return type() == Types::HalfSpaceSolid; }

  std::shared_ptr<FcBooleanResult> BooleanResultAssert() const;
  std::shared_ptr<FcCsgPrimitive3D> CsgPrimitive3DAssert() const;
  std::shared_ptr<FcHalfSpaceSolid> HalfSpaceSolidAssert() const;
  std::shared_ptr<FcSolidModel> SolidModelAssert() const;
  /// The solid model, which must be a swept area solid.
  std::shared_ptr<FcSweptAreaSolid> SweptAreaSolidAssert() const;
  /// Null, with an assert, also for a face set that doesn't say that it is closed.
  std::shared_ptr<FcTessellatedFaceSet> TessellatedFaceSetAssert() const;

  /// The item of whichever alternative, by the operation above.
  std::shared_ptr<const geometry::FcGeometricRepresentationItem>
  asGeometricRepresentationItemAssert() const;
  std::shared_ptr<geometry::FcGeometricRepresentationItem> asGeometricRepresentationItemNonConst();

  /// Those of the item; nothing where there is none.
  std::vector<TopoDS_Shape> ocRepresentation(const FcParams& params) const;
  std::optional<math::Extent> boundingBox(const FcParams& params) const;
};

}  // namespace qor::fc::resource::geometricmodel
