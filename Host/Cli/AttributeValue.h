#pragma once

#include <cstdint>
#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "Fc/Reflection/AttributeInfo.h"
#include "Fc/Reflection/LocalValue.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// The number of an entity in its file.
using NumberOf = std::function<std::uint64_t(const fc::FcBase&)>;

/// Those of a model that was read, which must outlive the function. An entity that the file doesn't
/// have gets the next number.
NumberOf numbersOf(const step::ReadResult& model);

/// The value of an attribute, forward or inverse. The entries of an inverse one come in the order
/// of their numbers.
fc::LocalValue valueOf(const fc::FcBase& entity, const fc::AttributeInfo& attribute,
                       const NumberOf& numberOf);

/// For a person: `'text'`, `2.5`, `SOLIDWALL`, `IFCLABEL('F90')`, `#12 IFCWALL 'South wall'`,
/// `(0, 0, 0)`, `$` for no value. A list with entities takes a line for each element, with `indent`
/// in front of it.
std::string valueText(const fc::LocalValue& value, const fc::AttributeInfo& attribute,
                      const NumberOf& numberOf, const std::string& indent);

/// For a program: null for no value, {"type": "IFCLABEL", "value": "F90"} for a value of a select,
/// `jsonLabel` for an entity, hexadecimal digits for bytes, "unknown" for a logical that is
/// neither.
nlohmann::ordered_json valueJson(const fc::LocalValue& value, const NumberOf& numberOf);

}  // namespace qor::host::cli
