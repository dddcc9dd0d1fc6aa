#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "Fc/FcBase.h"

namespace qor::fc {

/// Entities of one class, side by side in the list of a model, each given as a
/// `std::shared_ptr<T>`. All of them must be of class `T`: there is no check.
///
/// Stays what it was when it was asked for, whatever is added to the model or taken from it
/// meanwhile: it shares the list that it shows, and a model that has to change a shared list makes
/// a copy of its own first, once for a range. Iterators are good as long as a range of the same
/// list, or the list itself, is there.
template <class T>
class EntityRange {
 public:
  using List = std::vector<std::shared_ptr<FcBase>>;
  using Listed = List::const_iterator;
  /// The list holds `std::shared_ptr<FcBase>`: those needn't be made on the way.
  using reference = std::conditional_t<std::is_same_v<T, FcBase>, const std::shared_ptr<FcBase>&,
                                       std::shared_ptr<T>>;

  class iterator {
   public:
    using iterator_category = std::input_iterator_tag;  // a random access one, but for its values,
                                                        // which are made on the way
    using value_type = std::shared_ptr<T>;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = EntityRange::reference;

    iterator() = default;
    explicit iterator(Listed at) : m_at(at) {}
    reference operator*() const { return typed(*m_at); }
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

  EntityRange(std::shared_ptr<const List> list, Listed begin, Listed end)
      : m_list(std::move(list)), m_begin(begin), m_end(end) {}

  iterator begin() const { return iterator(m_begin); }
  iterator end() const { return iterator(m_end); }
  std::size_t size() const { return static_cast<std::size_t>(m_end - m_begin); }
  bool empty() const { return m_begin == m_end; }
  /// The range must not be empty.
  reference front() const { return *begin(); }
  reference operator[](std::size_t i) const {
    return typed(m_begin[static_cast<std::ptrdiff_t>(i)]);
  }

 private:
  static reference typed(const std::shared_ptr<FcBase>& listed) {
    if constexpr (std::is_same_v<T, FcBase>)
      return listed;
    else
      return std::static_pointer_cast<T>(listed);
  }

  std::shared_ptr<const List> m_list;
  Listed m_begin;
  Listed m_end;
};

}  // namespace qor::fc
