#pragma once

#include <cstddef>
#include <vector>

namespace qor::fc {

/// Ends what would never end: an item that, over maps and operands, is part of itself, and a
/// nesting too deep for the stack. Lives while an item that holds other items is converted.
class ConversionGuard {
 public:
  explicit ConversionGuard(const void* item);
  ConversionGuard(const ConversionGuard&) = delete;
  ConversionGuard& operator=(const ConversionGuard&) = delete;
  ~ConversionGuard();

  /// False for an item that is being converted already on this thread, and beyond `maximumDepth`
  /// nested ones; both are reported.
  bool mayEnter() const { return m_mayEnter; }

  static constexpr std::size_t maximumDepth = 500;

 private:
  bool m_mayEnter;
};

}  // namespace qor::fc
