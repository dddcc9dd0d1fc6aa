#include "Tests/Support/ExpectAsserts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace qor::test {

ExpectedAssert::ExpectedAssert(const char* message_, std::string function_, std::string source_)
    : ExpectedAssert(std::string(message_), std::move(function_), std::move(source_)) {}

ExpectedAssert::ExpectedAssert(std::string message_, std::string function_, std::string source_)
    : message(std::move(message_)), function(std::move(function_)), source(std::move(source_)) {}

bool ExpectedAssert::describes(const AssertInfo& info) const {
  return message == info.message && (function.empty() || function == info.function) &&
         (source.empty() || source == info.source);
}

ExpectAsserts::ExpectAsserts() : ExpectAsserts(std::initializer_list<ExpectedAssert>{}) {}

ExpectAsserts::ExpectAsserts(std::initializer_list<ExpectedAssert> expected)
    : ExpectAsserts(std::vector<ExpectedAssert>(expected)) {}

ExpectAsserts::ExpectAsserts(std::vector<ExpectedAssert> expected)
    : m_missing(std::move(expected)),
      m_previous(Assert::setHandler([this](const AssertInfo& info) { take(info); })) {}

ExpectAsserts::~ExpectAsserts() {
  Assert::setHandler(std::move(m_previous));
  for (const ExpectedAssert& missing : m_missing) {
    ADD_FAILURE() << "expected assert didn't come: \"" << missing.message << "\" "
                  << missing.function << ' ' << missing.source;
  }
}

void ExpectAsserts::take(const AssertInfo& info) {
  const std::lock_guard lock(m_mutex);
  const auto found = std::ranges::find_if(
      m_missing, [&info](const ExpectedAssert& expected) { return expected.describes(info); });
  if (found != m_missing.end()) {
    m_missing.erase(found);
  } else {
    ADD_FAILURE() << "unexpected assert: \"" << info.message << "\" from " << info.function << ", "
                  << info.source << ':' << info.line;
  }
}

}  // namespace qor::test
