#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "Fc/Resource/Geometry/FcRepresentationItemAttributes.h"
#include "Qor/Draw/Representation.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Polygon.h"

class TopoDS_Shape;

namespace qor::fc {
class FcDrawParams;
class FcParams;
}  // namespace qor::fc
namespace qor::fc::resource::presentationappearance {
class FcPresentationStyle;
}

namespace qor::fc::resource::geometry {

/// IfcRepresentationItem, Resource.Geometry: a piece of geometry.
///
/// Every class of items draws, moves and measures itself. The base forms are those of a class that
/// can't: they report it by an assert that names the class, and yield nothing.
class QOR_API FcRepresentationItem : public FcRepresentationItemAttributes {
 public:
  /// Turns the item into calls on the target of `params`, in the target's present frame, which is
  /// the same afterwards. An item whose attributes don't make sense reports it and draws nothing.
  virtual void draw(const FcDrawParams& params) const;
  /// Moves the item, and with it all that shares its points. Mirrors and scales only where the
  /// class allows it.
  virtual void transform(const math::Matrix& matrix);
  /// The box around what would be drawn, or one that is larger; empty for an item without one.
  virtual std::optional<math::Extent> boundingBox(const FcParams& params) const;
  /// What a representation that holds this item is for and made of; empty where that is open.
  virtual generate::draw::Representation representationGet() const;
  /// The item for the solid modeller: several shapes for a set, none on failure. The first call in
  /// a process opens Open CASCADE.
  virtual std::vector<TopoDS_Shape> ocRepresentation(const FcParams& params) const;
  /// Calls back for each style of the item, in order. `callback` must be callable.
  virtual void forEachPresentationStyle(
      const std::function<void(const presentationappearance::FcPresentationStyle&)>& callback)
      const;

  /// The outlines of the planar faces of the item's shells, each in its own plane, times `matrix`.
  /// Holes are left out. By the current processor of complex geometry, on this thread; without one
  /// an assert and nothing.
  std::vector<math::_3d::Polygon> getSurfaces(const FcParams& params,
                                              const math::Matrix& matrix) const;
  /// The least distance, in metres, between this item in the frame `thisMatrix` and `other` in
  /// `otherMatrix`: 0 where they touch or overlap. Empty when one has no shape, or no processor is
  /// there, which is reported.
  std::optional<double> getDistanceToOtherItem(const FcParams& params,
                                               const math::Matrix& thisMatrix,
                                               const FcRepresentationItem& other,
                                               const math::Matrix& otherMatrix) const;

 protected:
  FcRepresentationItem() = default;
};

}  // namespace qor::fc::resource::geometry
