#pragma once

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>

namespace qor::schema::test {

/// The text of the std::runtime_error that `function` throws; a failed expectation when it throws
/// none.
template <class Function>
std::string errorOf(const Function& function) {
  try {
    function();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  ADD_FAILURE() << "nothing was thrown";
  return {};
}

/// A faulty text, and what the error about it must say.
struct Faulty {
  const char* text;
  const char* error;
};

}  // namespace qor::schema::test
