#pragma once

#include <string>

#include "Fc/Resource/Measure/FcUnit.h"

namespace qor::host::cli {

/// A unit as a person says it: "millimetre", "square centimetre", "DEGREE = 0.0174532925199433
/// radian", "watt per square metre per kelvin", "EUR". What the file leaves open is "?".
///
/// Nothing is converted: the numbers are those of the file.
std::string unitWords(const fc::resource::measure::FcUnit& unit);

/// What the unit measures: "LENGTHUNIT", "THERMALTRANSMITTANCEUNIT", the user's own word, or
/// "MONETARYUNIT".
std::string unitType(const fc::resource::measure::FcUnit& unit);

}  // namespace qor::host::cli
