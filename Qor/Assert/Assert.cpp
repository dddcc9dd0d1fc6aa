#include "Qor/Assert/Assert.h"

#include <iostream>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace qor {

namespace {

struct InstalledHandler {
  std::mutex mutex;
  std::shared_ptr<const Assert::Handler> handler = std::make_shared<const Assert::Handler>();
};

// Never destroyed: destructors of other statics may still report at the end of the process.
InstalledHandler& installed() {
  static auto& instance = *new InstalledHandler;
  return instance;
}

// One write for the whole line, so that lines of several threads don't mix.
void writeToStandardError(const AssertInfo& info) {
  std::cerr << "assert: " + info.message + " [" + info.function + ", " + info.source + ':' +
                   std::to_string(info.line) + "]\n";
}

}  // namespace

void Assert::addAssert(const AssertInfo& info) {
  std::shared_ptr<const Handler> handler;
  {
    const std::lock_guard lock(installed().mutex);
    handler = installed().handler;
  }
  if (*handler) {
    (*handler)(info);
  } else {
    writeToStandardError(info);
  }
}

Assert::Handler Assert::setHandler(Handler handler) {
  auto next = std::make_shared<const Handler>(std::move(handler));
  const std::lock_guard lock(installed().mutex);
  installed().handler.swap(next);
  return *next;
}

}  // namespace qor
