#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"

#include <string>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Qor/Assert/Assert.h"

namespace qor::fc::resource::geometricconstraint {

using math::Matrix;

namespace {

/// The placement that this one is relative to; null for none.
const FcObjectPlacement* baseOf(const FcObjectPlacement* placement) {
  return placement ? placement->PlacementRelTo().get() : nullptr;
}

/// The first placement that the chain from `start` reaches twice; null for a chain that ends. Two
/// walkers, one twice as fast, meet on a cycle; from there and from the start it is equally far to
/// where the cycle begins.
const FcObjectPlacement* closingPlacement(const FcObjectPlacement* start) {
  const FcObjectPlacement *slow = start, *fast = start;
  do {
    slow = baseOf(slow);
    fast = baseOf(baseOf(fast));
    if (!fast) return nullptr;
  } while (slow != fast);
  for (slow = start; slow != fast; fast = baseOf(fast)) slow = baseOf(slow);
  return slow;
}

/// " of IFCWALL 3fa... (name)" for the first object that stands there; empty for none.
std::string placedObject(const FcObjectPlacement& placement) {
  for (const auto& product : placement.PlacesObject().lockAll()) {
    std::string text =
        std::string(" of ") + product->ifcNameUpper() + " " + product->GlobalId().toString(false);
    if (product->Name()) text += " (" + *product->Name() + ")";
    return text;
  }
  return {};
}

void reportCycle(const FcObjectPlacement& start, const FcObjectPlacement& closing) {
  if (!Assert::isEnabled()) return;
  Assert::addAssert(
      {.message = "PlacementRelTo of the placement" + placedObject(start) +
                  " leads in a circle back to the placement" + placedObject(closing),
       .function = "qor::fc::resource::geometricconstraint::FcLocalPlacement::placementGet",
       .source = "FcLocalPlacement",
       .line = __LINE__});
}

}  // namespace

Matrix FcLocalPlacement::placementGet(bool relativeOnly) const {
  Matrix frame = RelativePlacement().transformationGet();
  if (relativeOnly || !PlacementRelTo()) return frame;
  const FcObjectPlacement* closing = closingPlacement(this);
  if (closing) reportCycle(*this, *closing);
  bool closed = closing == this;
  for (const FcObjectPlacement* base = baseOf(this); base; base = baseOf(base)) {
    if (base == closing && closed) break;
    closed = closed || base == closing;
    const auto* local = fcCast<FcLocalPlacement>(base);
    if (!local) return frame * base->placementGet(false);
    frame = frame * local->RelativePlacement().transformationGet();
  }
  return frame;
}

}  // namespace qor::fc::resource::geometricconstraint
