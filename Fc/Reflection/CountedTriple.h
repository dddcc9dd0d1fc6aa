#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace qor::fc {

/// Up to three numbers in place: the coordinates of a point, the ratios of a direction. Unused ones
/// are 0, so that a planar point may be read as a spatial one. No heap.
template <class T>
class CountedTriple {
 public:
  static constexpr std::size_t capacity = 3;

  CountedTriple() = default;
  /// Numbers beyond the third are dropped.
  CountedTriple(std::initializer_list<T> values) {
    for (const T& value : values) pushBack(value);
  }

  std::size_t size() const { return m_count; }
  bool empty() const { return m_count == 0; }
  /// 0 to 2, also beyond `size()`.
  const T& operator[](std::size_t i) const { return m_values[i]; }
  const T* begin() const { return m_values.data(); }
  const T* end() const { return m_values.data() + m_count; }
  /// False when three are there already.
  bool pushBack(const T& value) {
    if (m_count == capacity) return false;
    m_values[m_count++] = value;
    return true;
  }
  void clear() { *this = CountedTriple(); }

  friend bool operator==(const CountedTriple&, const CountedTriple&) = default;

 private:
  std::array<T, capacity> m_values{};
  std::uint8_t m_count = 0;
};

}  // namespace qor::fc
