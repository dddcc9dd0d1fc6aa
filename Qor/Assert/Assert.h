#pragma once

#include <atomic>
#include <functional>

#include "Qor/Assert/AssertInfo.h"
#include "Qor/Platform/Export.h"

namespace qor {

/// Reports of broken rules, process-wide. A report never changes what the code behind it does.
///
/// A site asks first and reports then, so that a disabled assert costs one relaxed load:
///
///     if (Assert::isEnabled()) Assert::addAssert({.message = ..., .function = ..., .source = ...,
///     .line = __LINE__});
///
/// All operations may be called from any thread.
class QOR_API Assert {
 public:
  using Handler = std::function<void(const AssertInfo&)>;

  /// True unless `setEnabled(false)` was called.
  static bool isEnabled() { return m_enabled.load(std::memory_order_relaxed); }
  static void setEnabled(bool enabled) { m_enabled.store(enabled, std::memory_order_relaxed); }

  /// Hands `info` to the handler on the calling thread and returns when the handler does. It
  /// reports whether asserts are enabled or not: asking is the site's part.
  static void addAssert(const AssertInfo& info);

  /// Installs a handler and gives back the one before it. An empty function is the default handler,
  /// which writes one line to standard error, so that `setHandler(previous)` always restores.
  ///
  /// The handler is called on the thread of the report, by several threads at once where several
  /// report; it must not throw. No lock is held meanwhile: it may itself report or install another.
  /// A report that is under way on another thread may still reach the previous handler after this
  /// call has returned.
  static Handler setHandler(Handler handler);

 private:
  static inline std::atomic<bool> m_enabled{true};
};

}  // namespace qor
