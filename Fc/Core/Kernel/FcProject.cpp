#include "Fc/Core/Kernel/FcProject.h"

#include "Fc/Core/Kernel/FcProjectLibrary.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Data.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"

namespace qor::fc::core::kernel {

using resource::geometry::FcDirection;
using resource::representation::FcGeometricProjectionEnum;
using resource::representation::FcGeometricRepresentationContext;

namespace {

// Throws for a definition of properties, which nobody can draw.
void appendDeclared(const FcContext& context,
                    std::vector<std::shared_ptr<const FcObjectDefinition>>& declared) {
  context.Declares().forEach([&declared](const std::shared_ptr<FcRelDeclares>& relation) {
    for (const FcDefinitionSelect& definition : relation->RelatedDefinitions())
      declared.push_back(definition.ObjectDefinition());
  });
}

}  // namespace

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

void FcProject::doGenerate(FcGenerateParams& params) const {
  if (params.typeFilterSet) {
    std::vector<std::shared_ptr<const FcObjectDefinition>> declared, types;
    appendDeclared(*this, declared);
    for (const auto& definition : declared)
      if (const auto library = fcCast<const FcProjectLibrary>(definition))
        appendDeclared(*library, types);
    params.afterwards({types.begin(), types.end()});
  }
  FcObjectDefinition::doGenerate(params);
}

}  // namespace qor::fc::core::kernel
