// What a product answers from its body.
#include <algorithm>
#include <iterator>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::core::kernel {

using resource::geometry::FcRepresentationItem;

std::vector<const FcRepresentationItem*> FcProduct::getBodyRepresentationItems() const {
  std::vector<const FcRepresentationItem*> items;
  const auto model = data();
  const auto project = model ? model->project() : nullptr;
  const auto body = project
                        ? project->representationContextGet(FcContext::ModelContextIdentifier::Body)
                        : nullptr;
  if (!body || !Representation()) return items;
  for (const auto& representation : Representation()->Representations()) {
    if (!representation || representation->ContextOfItems() != body) continue;
    for (const auto& item : representation->Items())
      if (item) items.push_back(item.get());
  }
  return items;
}

std::vector<math::Polygon3d> FcProduct::getBodySurfaces(const FcParams& params) const {
  std::vector<math::Polygon3d> surfaces;
  const auto placement = absolutePlacement();
  if (!placement) return surfaces;
  for (const FcRepresentationItem* item : getBodyRepresentationItems())
    std::ranges::move(item->getSurfaces(params, *placement), std::back_inserter(surfaces));
  return surfaces;
}

std::optional<double> FcProduct::getDistanceToOtherProduct(const FcParams& params,
                                                           const FcProduct& other) const {
  const auto placement = absolutePlacement(), otherPlacement = other.absolutePlacement();
  std::optional<double> least;
  if (!placement || !otherPlacement) return least;
  const auto otherItems = other.getBodyRepresentationItems();
  for (const FcRepresentationItem* item : getBodyRepresentationItems())
    for (const FcRepresentationItem* otherItem : otherItems) {
      const auto distance =
          item->getDistanceToOtherItem(params, *placement, *otherItem, *otherPlacement);
      if (distance && (!least || *distance < *least)) least = distance;
    }
  return least;
}

}  // namespace qor::fc::core::kernel
