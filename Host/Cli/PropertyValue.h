#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "Fc/FcBase.h"
#include "Host/Cli/AttributeValue.h"

namespace qor::host::cli {

/// What a property or quantity holds, in words for a person: "true", "2.500 m²", "F90", "1 – 3
/// (2)", "a, b". A property that has others has no value of its own.
std::string propertyText(const fc::FcBase& property, const NumberOf& numberOf);

/// For a program: the attributes that hold values, by name, such as {"NominalValue": {"type":
/// "IFCLABEL", "value": "F90"}}; see `valueJson`.
nlohmann::ordered_json propertyJson(const fc::FcBase& property, const NumberOf& numberOf);

}  // namespace qor::host::cli
