#include "Fc/Resource/Measure/FcMeasureValue.h"

namespace qor::fc::resource::measure {

std::optional<double> FcMeasureValue::valueAsDoubleGet(bool integerCounts) const {
  return integerCounts || type() != Types::CountMeasure ? number() : std::nullopt;
}

}  // namespace qor::fc::resource::measure
