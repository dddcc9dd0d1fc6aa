#pragma once

#include <optional>
#include <vector>

#include "Fc/Resource/Representation/FcRepresentationAttributes.h"
#include "Qor/Draw/Representation.h"
#include "Qor/Math/Extent.h"

class TopoDS_Shape;

namespace qor::fc {
class FcDrawParams;
class FcGenerateParams;
class FcParams;
}  // namespace qor::fc

namespace qor::fc::resource::representation {

/// IfcRepresentation, Resource.Representation: the items that show an object in one context. Null
/// items are passed over everywhere.
class QOR_API FcRepresentation : public FcRepresentationAttributes {
 public:
  /// Hands each item to the target, in order: no filter, no change of what is cut.
  virtual void draw(const FcDrawParams& params) const;
  /// The same as part of a walk: when its context and the host's filters want it, with its layer
  /// told, and cut by openings only if it is a body.
  virtual void generate(FcGenerateParams& params) const;
  /// The box around the boxes of all items, an invalid one without items; empty when one item has
  /// none.
  virtual std::optional<math::Extent> boundingBox(const FcParams& params) const;
  /// The shapes of all items, in order.
  virtual std::vector<TopoDS_Shape> ocRepresentation(const FcParams& params) const;

  /// What the two texts of the representation say.
  generate::draw::Representation representation() const;
  /// Its identifier is "Body", in whatever case.
  bool shouldBeUsedInClipping() const;

 protected:
  FcRepresentation() = default;
};

}  // namespace qor::fc::resource::representation
