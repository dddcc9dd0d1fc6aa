#include "Fc/Resource/Measure/MeasureQuantities.h"

#include "Fc/Model/Report.h"
#include "Fc/Resource/Measure/FcDerivedMeasureValueAlternatives.h"
#include "Fc/Resource/Measure/FcMeasureValueAlternatives.h"
#include "Fc/Resource/Measure/MeasureTable.h"
#include "Qor/Unit/Quantities.h"
#include "Qor/Unit/QuantityPresentationFactory.h"

namespace qor::fc::resource::measure {

namespace {

bool isAlternative(const SelectInfo& info, std::string_view ifcName) {
  for (const AlternativeInfo& alternative : info.alternatives)
    if (alternative.ifcName == ifcName) return true;
  return false;
}

}  // namespace

const unit::QuantityBase* quantityOfMeasure(std::string_view name) {
  const MeasureRow* row = findMeasure(name);
  return row && row->quantity ? &row->quantity() : nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> createMeasurePresentation(std::string_view name,
                                                                          double number) {
  if (const unit::QuantityBase* quantity = quantityOfMeasure(name))
    return quantity->createPresentation(number);
  report({.kind = AssertInfo::unimplementedCase,
          .message =
              "qor::fc::helper::createQuantityPresentationFromValue: Not implemented unit for "
              "this",
          .function = "qor::fc::helper::createQuantityPresentationFromValue",
          .source = "Utilities/UnitHelper"});
  return nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase> createNumberPresentation(double number) {
  return unit::QuantityBase::registered<unit::Count>().createPresentation(number);
}

std::unique_ptr<unit::QuantityPresentationBase> withSettingsOfProperty(
    std::unique_ptr<unit::QuantityPresentationBase> presentation, const std::string& setName,
    const std::string& propertyName) {
  if (!presentation) return nullptr;
  using Factory = unit::QuantityPresentationFactory;
  auto own = Factory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
      setName + "." + propertyName, presentation->quantity(), presentation->number());
  return own ? std::move(own) : std::move(presentation);
}

bool isMeasure(std::string_view ifcName) {
  return isAlternative(FcMeasureValueAlternatives::table, ifcName) ||
         isAlternative(FcDerivedMeasureValueAlternatives::table, ifcName);
}

}  // namespace qor::fc::resource::measure
