#pragma once

#include <stdexcept>

#include "Fc/Resource/GeometricModel/FcBooleanResult.h"

namespace qor::fc::resource::geometricmodel {

/// The operands are of kinds that the operation works on; each that isn't is reported. `operation`
/// is its name in the report, "difference".
bool operandsFit(const FcBooleanResult& result, const char* operation, bool mayCutWithHalfSpace);

/// What the function of the result's operator makes; an empty `Result` when the operands don't fit.
/// Throws `std::runtime_error` for an operator that is none.
template <class Result, class Difference, class Intersection, class Union>
Result byOperator(const FcBooleanResult& result, const Difference& difference,
                  const Intersection& intersection, const Union& unite) {
  switch (result.Operator()) {
    case FcBooleanOperator::DIFFERENCE:
      return operandsFit(result, "difference", true) ? difference() : Result{};
    case FcBooleanOperator::INTERSECTION:
      return operandsFit(result, "intersection", false) ? intersection() : Result{};
    case FcBooleanOperator::UNION:
      return operandsFit(result, "union", false) ? unite() : Result{};
  }
  throw std::runtime_error(
      "Assertion failed in FcBooleanResult::ocRepresentation: unknown boolean operator");
}

}  // namespace qor::fc::resource::geometricmodel
