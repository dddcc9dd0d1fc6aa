#include "Fc/Resource/GeometricConstraint/PlacementChain.h"

#include <string>

#include "Fc/Model/Report.h"
#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"

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
  std::string text;
  placement.PlacesObject().InverseEntries::forEach([&text](const std::shared_ptr<FcBase>& product) {
    if (!text.empty()) return;
    text = std::string(" of ") + product->ifcNameUpper() + " " +
           product->getAttributeAsString("GlobalId").value_or("");
    if (const auto name = product->getAttributeAsString("Name")) text += " (" + *name + ")";
  });
  return text;
}

void reportCycle(const FcObjectPlacement& start, const FcObjectPlacement& closing) {
  report("PlacementRelTo of the placement" + placedObject(start) +
         " leads in a circle back to the placement" + placedObject(closing));
}

/// Has a frame of its own in that of the placement that it is relative to.
bool isRelative(const FcObjectPlacement& placement) {
  if (const auto* linear = fcCast<FcLinearPlacement>(static_cast<const FcBase*>(&placement)))
    return linear->CartesianPosition() != nullptr;
  return fcCast<FcLocalPlacement>(static_cast<const FcBase*>(&placement)) != nullptr;
}

}  // namespace

Matrix frameInProject(const FcObjectPlacement& placement) {
  Matrix frame = placement.placementGet(true);
  if (!placement.PlacementRelTo()) return frame;
  const FcObjectPlacement* closing = closingPlacement(&placement);
  if (closing) reportCycle(placement, *closing);
  bool closed = closing == &placement;
  for (const FcObjectPlacement* base = baseOf(&placement); base; base = baseOf(base)) {
    if (base == closing && closed) break;
    closed = closed || base == closing;
    if (!isRelative(*base)) return frame * base->placementGet(false);
    frame = frame * base->placementGet(true);
  }
  return frame;
}

}  // namespace qor::fc::resource::geometricconstraint
