#pragma once

#include <string>
#include <vector>

#include "Host/StepFile/StepReader.h"

namespace qor::test {

enum class Compared {
  everything,
  /// Numbers may differ by 1e-12 of the larger one; SI units, what refers to them, and unit
  /// assignments aren't looked at.
  allButUnits
};

/// Where a model holds other values than the first one in the instance of the same number, a line
/// each. References are the same when they lead to instances of the same number.
std::vector<std::string> differences(const host::step::ReadResult& a,
                                     const host::step::ReadResult& b,
                                     Compared compared = Compared::everything);

/// Multiplies all lengths of a model with a factor, by the types' names and one attribute after the
/// other: shares no code with the reader. Returns how many numbers that were.
std::size_t scaleLengths(const host::step::ReadResult& model, double factor);

}  // namespace qor::test
