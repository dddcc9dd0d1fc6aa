#pragma once

#include <string>
#include <vector>

#include "Host/StepFile/StepReader.h"

namespace qor::test {

/// Where a model holds other values than the first one in the instance of the same number, a line
/// each: numbers that differ by more than 1e-12 of the larger one, all else that isn't the same.
/// References, SI units and unit assignments aren't looked at.
std::vector<std::string> differences(const host::step::ReadResult& a,
                                     const host::step::ReadResult& b);

/// Multiplies all lengths of a model with a factor, by the types' names and one attribute after the
/// other: shares no code with the reader. Returns how many numbers that were.
std::size_t scaleLengths(const host::step::ReadResult& model, double factor);

}  // namespace qor::test
