#pragma once

#include "Fc/Resource/Report.h"

namespace qor::fc::resource::geometricmodel {

/// The check of a size that must be positive.
struct PositiveLength {
  const char* function;  ///< qualified, for the report
  double tolerance;

  /// False, with an assert, for a length within the tolerance of 0, below it, or not a number.
  bool operator()(double length, const char* message, int line) const {
    if (length > tolerance) return true;
    report(message, function, line);
    return false;
  }
};

}  // namespace qor::fc::resource::geometricmodel
