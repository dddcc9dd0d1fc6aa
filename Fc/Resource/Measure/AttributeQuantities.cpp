// What attributes of entities measure.

#include "Fc/FcBase.h"
#include "Fc/Reflection/NumberOf.h"
#include "Fc/Resource/Measure/MeasureQuantities.h"

namespace qor::fc {
namespace {

const unit::QuantityBase* quantityOf(const AttributeInfo* attribute) {
  if (!attribute || !attribute->aggregates.empty() || !attribute->typeName.starts_with("Ifc"))
    return nullptr;
  return resource::measure::quantityOfMeasure(attribute->typeName.substr(3));
}

}  // namespace

std::optional<double> FcBase::getAttributeAsSiUnit(const Data&, const std::string& name) const {
  const AttributeInfo* attribute = classInfo().findAttribute(name);
  if (!attribute || !resource::measure::isMeasure(attribute->typeName)) return std::nullopt;
  return numberOf(attribute->type->getLocalValue(attribute->of(*this)));
}

bool FcBase::hasQuantityPresentationLocal(const object::PropertyId& id) const {
  return quantityOf(classInfo().findAttribute(id.name())) != nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> FcBase::createQuantityPresentationLocal(
    const object::PropertyId& id) const {
  const AttributeInfo* attribute = classInfo().findAttribute(id.name());
  const unit::QuantityBase* quantity = quantityOf(attribute);
  if (!quantity) return nullptr;
  const auto number = numberOf(attribute->type->getLocalValue(attribute->of(*this)));
  return number ? quantity->createPresentation(*number) : nullptr;
}

}  // namespace qor::fc
