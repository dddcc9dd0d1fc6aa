#include "Fc/Core/Kernel/FcProject.h"

#include "Fc/Data.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"

namespace qor::fc::core::kernel {

using resource::geometry::FcDirection;
using resource::representation::FcGeometricProjectionEnum;
using resource::representation::FcGeometricRepresentationContext;

math::Angle FcProject::getTrueNorth() const {
  if (!RepresentationContexts()) return 0;
  for (const auto& context : *RepresentationContexts()) {
    const auto geometric = fcCast<FcGeometricRepresentationContext>(context);
    if (!geometric || !geometric->TrueNorth()) continue;
    const auto& ratios = geometric->TrueNorth()->DirectionRatios();
    const auto north = math::Vector3d(ratios[0], ratios[1], ratios[2]).normalized();
    const math::Angle angle = north.innerAngle({0, 1, 0});
    return north.x < 0 ? math::Angle(-angle) : angle;
  }
  return 0;
}

void FcProject::setTrueNorth(Data& data, const math::Angle& clockwiseFromY) {
  setTrueNorth(data, math::Vector2d(0, 1).rotate(-clockwiseFromY));
}

void FcProject::setTrueNorth(Data& data, const math::Vector2d& north) {
  const auto body = representationContextGetOrAdd(
      data, ContextType::Model,
      IfcGeometricRepresentationContextEnum::sContextIdentifier(ModelContextIdentifier::Body),
      FcGeometricProjectionEnum::NOTDEFINED);
  auto direction = makeEntity<FcDirection>();
  direction->setDirectionRatios({north.x, north.y});
  body->ParentContext()->setTrueNorth(std::move(direction));
}

}  // namespace qor::fc::core::kernel
