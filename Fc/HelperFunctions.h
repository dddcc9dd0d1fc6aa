#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Qor/Id/Guid.h"
#include "Qor/Math/LogicalValue.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// Texts of attribute values and back. Readers answer false for a text that isn't one and then
/// leave `out` as it was.

/// Six decimals, a point whatever the locale: "2.500000".
QOR_API std::string textFromReal(double value);
/// White space in front and anything behind the number are passed over; false for no digits and for
/// a number out of range.
QOR_API bool realFromText(const std::string& text, double& out);
/// As `realFromText`, base 10; the range is that of 32 bits.
QOR_API bool integerFromText(const std::string& text, std::int64_t& out);
/// Exactly "true" or "false".
QOR_API bool booleanFromText(const std::string& text, bool& out);
/// "true", "false", "unknown"; empty for any other stored number.
QOR_API std::optional<std::string> textFromLogical(LogicalValue value);
QOR_API bool logicalFromText(const std::string& text, LogicalValue& out);

/// Answers for attributes that refer to entities: an assert and the negative result.
QOR_API std::optional<std::string> getMemberAsStringObject();
QOR_API bool setMemberFromStringObject();
/// Answers for lists and other values without a text parser: an assert and false.
QOR_API bool setMemberFromStringPrimitive();

}  // namespace qor::fc
