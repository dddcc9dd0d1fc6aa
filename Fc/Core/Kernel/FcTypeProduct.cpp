#include "Fc/Core/Kernel/FcTypeProduct.h"

#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Drawing/OpenObject.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc::core::kernel {

using generate::draw::TransformationGuard;
using resource::representation::FcGeometricRepresentationContext;
using resource::representation::FcGeometricRepresentationSubContext;
using resource::representation::FcRepresentationContext;

namespace {

// Of a sub-context the dimension is that of its parent.
std::int64_t dimension(const FcRepresentationContext& context) {
  const auto* geometric = fcCast<FcGeometricRepresentationContext>(&context);
  if (const auto* sub = fcCast<FcGeometricRepresentationSubContext>(&context))
    geometric = sub->ParentContext().get();
  return geometric ? geometric->CoordinateSpaceDimension().value() : 0;
}

}  // namespace

std::string FcTypeProduct::classNameWithoutType() const {
  static constexpr std::string_view word = "Type";
  std::string name = ifcName();
  for (std::size_t at = 0; (at = name.find(word, at)) != std::string::npos;)
    name.erase(at, word.size());
  return name;
}

bool FcTypeProduct::has2dGeometricContext() const {
  return getRepresentationContexts([](const FcRepresentationContext& context) {
           const auto* geometric = fcCast<FcGeometricRepresentationContext>(&context);
           return geometric && geometric->CoordinateSpaceDimension().value() == 2;
         }) != nullptr;
}

bool FcTypeProduct::has3dGeometricContext() const {
  return getRepresentationContexts([](const FcRepresentationContext& context) {
           return dimension(context) == 3;
         }) != nullptr;
}

void FcTypeProduct::doGenerate(FcGenerateParams& params) const {
  if (params.typeFilterSet && GlobalId() == params.typeFilterGuid &&
      !(params.skipObjectCallback && params.skipObjectCallback(GlobalId())) &&
      params.drawInterface())
    drawAsObject(params);
  FcObjectDefinition::doGenerate(params);
}

void FcTypeProduct::drawAsObject(FcGenerateParams& params) const {
  ObjectInterface* const object = params.object(sharedRoot());
  if (!object) return;
  FcDrawInterface& target = *params.drawInterface();
  const OpenObject open(params.generateInterface(), object);
  const TransformationGuard guard(target);
  if (RepresentationMaps() && params.isEnabled(*this))
    for (const auto& map : *RepresentationMaps())
      if (map) map->generate(params);
  drawPorts(params);
}

std::shared_ptr<const FcRepresentationContext> FcTypeProduct::getRepresentationContexts(
    const std::function<bool(const FcRepresentationContext&)>& predicate) const {
  if (!RepresentationMaps()) return nullptr;
  for (const auto& map : *RepresentationMaps()) {
    const auto shape = map ? map->MappedRepresentation() : nullptr;
    const auto context = shape ? shape->ContextOfItems() : nullptr;
    if (context && predicate(*context)) return context;
  }
  return nullptr;
}

}  // namespace qor::fc::core::kernel
