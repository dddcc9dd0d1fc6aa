#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "Fc/Drawing/FcClip.h"
#include "Qor/Draw/BlockInterface.h"
#include "Qor/Draw/DrawInterfaceBase.h"
#include "Qor/Draw/SurfaceDrawType.h"

namespace qor::fc::resource::presentationorganization {
class FcPresentationLayerAssignment;
}

namespace qor::fc {

/// A draw target that representation items draw themselves into.
///
/// Items come to it whole, by the first two operations: the place where a target gives an item its
/// look, cuts it, or keeps it. What it doesn't treat itself it lets draw: `item->draw(params)`.
class QOR_API FcDrawInterface : public virtual generate::draw::DrawInterfaceBase, public FcClip {
 public:
  /// An item of the model, which the target leaves as it is. Never null.
  virtual void drawConstRepresentationItem(
      std::shared_ptr<const resource::geometry::FcRepresentationItem> item,
      const FcDrawParams& params, generate::draw::SurfaceDrawType type) = 0;
  /// An item that was made for this call: the target may keep and change it. Never null.
  virtual void drawRepresentationItem(
      std::shared_ptr<resource::geometry::FcRepresentationItem> item, const FcDrawParams& params,
      generate::draw::SurfaceDrawType type) = 0;
  /// The layer of the items that come next; null for none.
  virtual void presentationLayerNotice(
      std::shared_ptr<const resource::presentationorganization::FcPresentationLayerAssignment>
      /*layer*/) {}
  /// How often something to see was drawn so far: `DrawOutcomes` tells by it whether a product was.
  /// Empty for a target that doesn't count; then each that was asked for, without a report, is
  /// taken for drawn.
  virtual std::optional<std::uint64_t> shownCount() const { return std::nullopt; }
  /// Who keeps blocks for this target: itself when it is a `BlockInterface`, null for nobody.
  virtual generate::draw::BlockInterface* blockInterface() {
    return dynamic_cast<generate::draw::BlockInterface*>(this);
  }
};

}  // namespace qor::fc
