#include "Fc/Core/Kernel/FcContext.h"

#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/PropertySetAttachment.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Data.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcAxis2Placement3D.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcMonetaryUnit.h"
#include "Fc/Resource/Measure/FcNamedUnit.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"

namespace qor::fc::core::kernel {

using productextension::FcElementQuantity;
using resource::geometry::FcAxis2Placement3D;
using resource::measure::FcDerivedUnit;
using resource::measure::FcDerivedUnitEnum;
using resource::measure::FcNamedUnit;
using resource::measure::FcUnit;
using resource::measure::FcUnitEnum;
using resource::representation::FcGeometricProjectionEnum;
using resource::representation::FcGeometricRepresentationContext;
using resource::representation::FcGeometricRepresentationSubContext;
using resource::representation::FcRepresentationContext;

namespace {

std::shared_ptr<FcGeometricRepresentationSubContext> subContext(
    const FcGeometricRepresentationContext& context, const std::string& identifier) {
  std::shared_ptr<FcGeometricRepresentationSubContext> found;
  context.HasSubContexts().forEach(
      [&](std::shared_ptr<FcGeometricRepresentationSubContext>&& entry) {
        if (!found && entry->ContextIdentifier() == identifier) found = std::move(entry);
      });
  return found;
}

FcGeometricProjectionEnum targetViewFor(FcContext::ContextType type,
                                        FcGeometricProjectionEnum wanted) {
  if (wanted != FcGeometricProjectionEnum::NOTDEFINED) return wanted;
  if (type == FcContext::ContextType::Plan) return FcGeometricProjectionEnum::PLAN_VIEW;
  if (type == FcContext::ContextType::Model) return FcGeometricProjectionEnum::MODEL_VIEW;
  report(
      "FcProject::representationContextGetOrAdd -> TargetView should have been set "
      "to something other than NOTDEFINED.");
  return wanted;
}

}  // namespace

std::shared_ptr<const FcNamedUnit> FcContext::namedUnitGet(FcUnitEnum kind) const {
  if (!UnitsInContext()) return nullptr;
  for (const FcUnit& unit : UnitsInContext()->Units())
    if (unit.type() == FcUnit::Types::NamedUnit && unit.NamedUnit() &&
        unit.NamedUnit()->UnitType() == kind)
      return unit.NamedUnit();
  return nullptr;
}

std::shared_ptr<const FcDerivedUnit> FcContext::derivedUnitGet(FcDerivedUnitEnum kind) const {
  if (!UnitsInContext()) return nullptr;
  for (const FcUnit& unit : UnitsInContext()->Units())
    if (unit.type() == FcUnit::Types::DerivedUnit && unit.DerivedUnit() &&
        unit.DerivedUnit()->UnitType() == kind)
      return unit.DerivedUnit();
  return nullptr;
}

std::shared_ptr<FcRepresentationContext> FcContext::firstContext(const std::string& type) const {
  if (RepresentationContexts())
    for (const auto& context : *RepresentationContexts())
      if (context && context->ContextType() == type) return context;
  return nullptr;
}

std::shared_ptr<FcContext::SubContext> FcContext::representationContextGet(
    ContextType type, const std::string& identifier) const {
  const auto context = fcCast<FcGeometricRepresentationContext>(
      firstContext(IfcGeometricRepresentationContextEnum::sContextType(type)));
  return context ? subContext(*context, identifier) : nullptr;
}

std::shared_ptr<FcContext::SubContext> FcContext::representationContextGet(
    ModelContextIdentifier identifier) const {
  return representationContextGet(
      ContextType::Model, IfcGeometricRepresentationContextEnum::sContextIdentifier(identifier));
}

std::shared_ptr<FcGeometricRepresentationContext> FcContext::addContext(Data& data,
                                                                        ContextType type) {
  auto context = data.create<FcGeometricRepresentationContext>();
  context->setContextType(IfcGeometricRepresentationContextEnum::sContextType(type));
  context->setCoordinateSpaceDimension(type == ContextType::Plan ? 2 : 3);
  context->setPrecision(1e-5);
  const auto placement = data.create<FcAxis2Placement3D>();
  placement->setPlacement(math::Matrix());
  context->setWorldCoordinateSystem(placement);
  insertRepresentationContexts(context);
  return context;
}

std::shared_ptr<FcContext::SubContext> FcContext::representationContextGetOrAdd(
    Data& data, ContextType type, const std::string& identifier,
    FcGeometricProjectionEnum targetView) {
  const char* const typeText = IfcGeometricRepresentationContextEnum::sContextType(type);
  auto context = fcCast<FcGeometricRepresentationContext>(firstContext(typeText));
  if (!context) context = addContext(data, type);
  if (auto found = subContext(*context, identifier)) return found;
  auto added = data.create<FcGeometricRepresentationSubContext>();
  added->setParentContext(context);
  added->setContextType(typeText);
  added->setContextIdentifier(identifier);
  added->setTargetView(targetViewFor(type, targetView));
  return added;
}

std::shared_ptr<FcRelDeclares> FcContext::hasContextConnect(
    Data& data, FcObjectDefinition& object, const std::function<void(FcRelDeclares&)>& initialise) {
  std::shared_ptr<FcRelDeclares> relation;
  if (Declares().empty()) {
    relation = data.create<FcRelDeclares>();
    relation->setGlobalId(Guid::generate());
    relation->setRelatingContext(std::static_pointer_cast<FcContext>(shared_from_this()));
    if (initialise) initialise(*relation);
  } else {
    relation = Declares().lockAll().front();
  }
  if (relation)
    relation->insertRelatedDefinitions(
        std::static_pointer_cast<FcObjectDefinition>(object.shared_from_this()));
  return relation;
}

template <class T>
std::shared_ptr<T> FcContext::getOrCreatePropertySetDefinition(
    Data& data, const std::string& name, const std::function<void(T&)>& initialiseSet,
    const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation) {
  return getOrAttachPropertySet<T>(*this, data, name, initialiseSet, initialiseRelation);
}

void FcContext::propertySetAdd(
    Data& data, std::shared_ptr<FcPropertySetDefinition> set,
    const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation) {
  const auto relation = createDefinesByProperties(data);
  if (initialiseRelation) initialiseRelation(*relation);
  relation->setRelatingPropertyDefinition(std::move(set));
  relation->insertRelatedObjects(self());
}

template QOR_API std::shared_ptr<FcPropertySet> FcContext::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(FcPropertySet&)>&,
    const std::function<void(FcRelDefinesByProperties&)>&);
template QOR_API std::shared_ptr<FcElementQuantity> FcContext::getOrCreatePropertySetDefinition(
    Data&, const std::string&, const std::function<void(FcElementQuantity&)>&,
    const std::function<void(FcRelDefinesByProperties&)>&);

}  // namespace qor::fc::core::kernel
