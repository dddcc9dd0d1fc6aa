#pragma once

#include <Standard_Failure.hxx>
#include <exception>
#include <string>

#include "Fc/HelperFunctionsOC.h"
#include "Fc/Model/Report.h"

namespace qor::fc {

/// What `make` gives, or an empty `Result`, with an assert of `message`, when Open CASCADE throws.
template <class Result, class Make>
Result guarded(const std::string& message, const Make& make) {
  Result result{};
  return guardOpenCascade([&] { result = make(); }, message) ? result : Result{};
}

/// The same for whatever `make` throws.
template <class Result, class Make>
Result guardedBSpline(const std::string& message, const Make& make) {
  try {
    return guarded<Result>(message, make);
  } catch (const std::exception&) {
    report(message);
    return Result{};
  }
}

}  // namespace qor::fc
