#include "Fc/Core/ProductExtension/FcElement.h"

#include "Fc/Core/ProductExtension/FcFeatureElementSubtraction.h"
#include "Fc/Core/ProductExtension/FcRelConnectsWithRealizingElements.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/OpenObject.h"
#include "Fc/Resource/GeometricConstraint/FcConnectionGeometry.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::core::productextension {

using generate::draw::TransformationGuard;
using math::MatrixMultiplyOrder;

namespace {

using Worker = FcClip::ClippingItemsWorker;

void addBodies(const FcFeatureElementSubtraction& opening, Worker& worker) {
  if (!opening.Representation()) return;
  const auto placement = opening.absolutePlacement();
  if (!placement) return;
  for (const auto& representation : opening.Representation()->Representations()) {
    if (!representation || !representation->shouldBeUsedInClipping()) continue;
    for (const auto& item : representation->Items())
      if (item) worker.addClipObject({item, *placement});
  }
}

}  // namespace

void FcElement::doGenerate(FcGenerateParams& params) const {
  drawConnectionLines(params);
  const auto voids = params.drawInterface() ? HasOpenings().lock()
                                            : std::vector<std::shared_ptr<FcRelVoidsElement>>();
  if (voids.empty()) return FcProduct::doGenerate(params);

  const auto worker = std::make_shared<Worker>(*params.drawInterface());
  for (const auto& relation : voids) {
    const auto& opening = relation->RelatedOpeningElement();
    if (opening) params.afterwards({opening}, [opening, worker] { addBodies(*opening, *worker); });
  }
  params.afterwards({}, [this, &params] { FcProduct::doGenerate(params); });
  params.afterwards({}, [worker] {});  // which keeps it until the parts are drawn
}

void FcElement::drawConnectionLines(FcGenerateParams& params) const {
  if (!params.connectionLine() || !params.drawInterface()) return;
  for (const auto& relation : ConnectedTo().lock()) {
    const auto realized = fcCast<FcRelConnectsWithRealizingElements>(relation);
    if (realized && realized->ConnectionGeometry()) drawConnectionLine(params, realized);
  }
}

void FcElement::drawConnectionLine(
    FcGenerateParams& params,
    const std::shared_ptr<FcRelConnectsWithRealizingElements>& relation) const {
  if (relation->RealizingElements().empty()) return;
  const std::shared_ptr<FcElement> cable = relation->RealizingElements().front();
  if (!cable || !params.isEnabled(*cable)) return;
  const auto* const object = params.objectConnectionLine(cable);
  params.vCableToConnectionLineMapEntry(relation, cable);
  const OpenObject open(params.generateInterface(), object);
  const TransformationGuard guard(*params.drawInterface());
  const auto placement = absolutePlacement();
  if (!placement) return;
  params.drawInterface()->vTransformationMultiply(*placement, MatrixMultiplyOrder::left);
  relation->ConnectionGeometry()->generate(params);
}

}  // namespace qor::fc::core::productextension
