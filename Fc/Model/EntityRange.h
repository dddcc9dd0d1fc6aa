#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

#include "Fc/FcBase.h"

namespace qor::fc {

/// Entities of one class, side by side in the list of a model, each given as a
/// `std::shared_ptr<T>`. All of them must be of class `T`: there is no check. Two iterators,
/// nothing of its own.
template <class T>
class EntityRange {
 public:
  using Listed = std::vector<std::shared_ptr<FcBase>>::const_iterator;

  class iterator {
   public:
    using iterator_category = std::input_iterator_tag;  // a random access one, but for its values,
                                                        // which are made on the way
    using value_type = std::shared_ptr<T>;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = std::shared_ptr<T>;

    iterator() = default;
    explicit iterator(Listed at) : m_at(at) {}
    std::shared_ptr<T> operator*() const { return std::static_pointer_cast<T>(*m_at); }
    iterator& operator++() {
      ++m_at;
      return *this;
    }
    iterator operator++(int) { return iterator(m_at++); }
    friend bool operator==(const iterator&, const iterator&) = default;

   private:
    Listed m_at{};
  };
  using value_type = std::shared_ptr<T>;
  using const_iterator = iterator;

  EntityRange(Listed begin, Listed end) : m_begin(begin), m_end(end) {}

  iterator begin() const { return iterator(m_begin); }
  iterator end() const { return iterator(m_end); }
  std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }
  bool empty() const { return m_begin == m_end; }
  /// The range must not be empty.
  std::shared_ptr<T> front() const { return *begin(); }
  std::shared_ptr<T> operator[](std::size_t i) const {
    return std::static_pointer_cast<T>(m_begin[static_cast<std::ptrdiff_t>(i)]);
  }

 private:
  Listed m_begin;
  Listed m_end;
};

}  // namespace qor::fc
