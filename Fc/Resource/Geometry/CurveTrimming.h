#pragma once

#include <string>

#include "Fc/Model/Report.h"
#include "Fc/Resource/Geometry/FcCurve.h"

namespace qor::fc::resource::geometry {

/// For curves that can only be evaluated whole: true when neither trims nor `reverse` are asked
/// for. Else asserts "FcTrimmedCurve::curve2d not implemented for trimming", or for reverse, with
/// the operation given, which is named without its namespace.
inline bool expectWhole(const FcCurve::Trim& trim1, const FcCurve::Trim& trim2, bool reverse,
                        const char* operation) {
  const auto refuse = [&](const char* what) {
    report(std::string(operation) + " not implemented for " + what);
  };
  if (trim1 || trim2) refuse("trimming");
  if (reverse) refuse("reverse");
  return !trim1 && !trim2 && !reverse;
}

}  // namespace qor::fc::resource::geometry
