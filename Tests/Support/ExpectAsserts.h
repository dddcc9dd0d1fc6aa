#pragma once

#include <initializer_list>
#include <mutex>
#include <string>
#include <vector>

#include "Qor/Assert/Assert.h"

namespace qor::test {

/// An assert that a test waits for. A bare text is its message; function and source are compared
/// where they are given.
struct ExpectedAssert {
  ExpectedAssert(const char* message, std::string function = {}, std::string source = {});
  ExpectedAssert(std::string message, std::string function = {}, std::string source = {});

  bool describes(const AssertInfo& info) const;

  std::string message;
  std::string function;
  std::string source;
};

/// While it lives, it takes all asserts of the process, from any thread. The test fails on each
/// assert that nobody expected and, when this goes out of scope, on each expected one that didn't
/// come. Order doesn't count; an assert that comes twice must be expected twice. Scopes may nest:
/// the inner one takes all.
///
///     const ExpectAsserts expected({"Not implemented", {"Illegal class name",
///     "qor::fc::Factory::boundFromIfcName"}});
class ExpectAsserts {
 public:
  /// Expects none.
  ExpectAsserts();
  explicit ExpectAsserts(std::initializer_list<ExpectedAssert> expected);
  explicit ExpectAsserts(std::vector<ExpectedAssert> expected);
  ExpectAsserts(const ExpectAsserts&) = delete;
  ExpectAsserts& operator=(const ExpectAsserts&) = delete;
  ~ExpectAsserts();

 private:
  void take(const AssertInfo& info);

  std::mutex m_mutex;
  std::vector<ExpectedAssert> m_missing;
  Assert::Handler m_previous;
};

}  // namespace qor::test
