#include "Fc/Resource/Representation/FcRepresentation.h"

#include "Fc/Drawing/DrawOutcomes.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/PresentationOrganization/FcPresentationLayerAssignment.h"
#include "Fc/Resource/Representation/FcRepresentationContext.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::fc::resource::representation {

using generate::draw::SurfaceDrawType;

void FcRepresentation::draw(const FcDrawParams& params) const {
  for (const auto& item : Items())
    if (item) params->drawConstRepresentationItem(item, params, SurfaceDrawType::Surface);
}

void FcRepresentation::generate(FcGenerateParams& params) const {
  FcDrawInterface* const target = params.drawInterface();
  if (!target) return;
  if (ContextOfItems() && !ContextOfItems()->generate(params)) return;
  RepresentationInterface::Answer answer;
  if (params.representationFilter())
    answer = params.representationFilter()->representation(params, *this);
  if (!answer.generate) return;
  if (params.outcomes) params.outcomes->setAskedFor();

  std::optional<FcClip::RestoreClipping> uncut;
  if (!shouldBeUsedInClipping()) uncut.emplace(*target);
  target->presentationLayerNotice(LayerAssignments().lockFirst());
  FcDrawParams drawParams(*target);
  drawParams.skipExpensiveClipping = params.skipExpensiveClipping;
  draw(drawParams);
}

std::optional<math::Extent> FcRepresentation::boundingBox(const FcParams& params) const {
  math::Extent extent;
  for (const auto& item : Items()) {
    if (!item) continue;
    const auto box = item->boundingBox(params);
    if (!box) return {};
    extent = extent.uniteWith(*box);
  }
  return extent;
}

generate::draw::Representation FcRepresentation::representation() const {
  return generate::draw::Representation::fromTexts(RepresentationIdentifier().value_or(""),
                                                   RepresentationType().value_or(""));
}

bool FcRepresentation::shouldBeUsedInClipping() const {
  return RepresentationIdentifier() && equalsIgnoreCase(*RepresentationIdentifier(), "body");
}

}  // namespace qor::fc::resource::representation
