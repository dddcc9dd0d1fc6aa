#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace qor::test {

/// The instances of a sound STEP file by number, each in one spelling: no white space or comments,
/// numbers as their value. Two files with the same statements differ in formatting alone. Shares no
/// code with the reader.
std::map<std::uint64_t, std::string> canonicalStatements(std::string_view text);

}  // namespace qor::test
