#pragma once

#include <memory>
#include <vector>

#include "Fc/Reflection/InverseEntries.h"

namespace qor::fc {

/// An inverse attribute with any number of entries: who names this entity in a forward attribute.
/// `T` is the class that holds the forward attribute. Never owning; written by the setters of the
/// forward attribute alone.
///
/// The order of iteration has no meaning. Whoever may set or clear the forward attribute while
/// walking takes `lock()`, the others `forEach`, which allocates nothing.
template <class T>
class InverseSet : public InverseEntries {
 public:
  /// Calls back with a `std::shared_ptr<T>` for each entry that is alive.
  template <class Callback>
  void forEach(Callback&& callback) const {
    InverseEntries::forEach([&callback](std::shared_ptr<FcBase>&& entry) {
      callback(std::static_pointer_cast<T>(std::move(entry)));
    });
  }
  /// The same until the callback answers true: what lies behind isn't locked.
  template <class Callback>
  void forEachUntil(Callback&& callback) const {
    InverseEntries::forEachUntil([&callback](std::shared_ptr<FcBase>&& entry) {
      return callback(std::static_pointer_cast<T>(std::move(entry)));
    });
  }
  /// The entries that are alive.
  std::vector<std::shared_ptr<T>> lock() const {
    std::vector<std::shared_ptr<T>> result;
    result.reserve(size());
    forEach([&result](std::shared_ptr<T>&& entry) { result.push_back(std::move(entry)); });
    return result;
  }
  /// All entries, a null pointer for each that has died.
  std::vector<std::shared_ptr<T>> lockAll() const {
    std::vector<std::shared_ptr<T>> result;
    result.reserve(size());
    forEachEntry([&result](std::shared_ptr<FcBase>&& entry) {
      result.push_back(std::static_pointer_cast<T>(std::move(entry)));
    });
    return result;
  }
  /// The first entry that is alive; null for none.
  std::shared_ptr<T> lockFirst() const {
    std::shared_ptr<T> result;
    forEachUntil([&result](std::shared_ptr<T>&& entry) {
      result = std::move(entry);
      return true;
    });
    return result;
  }
};

/// An inverse attribute with one entry at most: a further one replaces it.
template <class T>
class InverseRef : public InverseEntries {
 public:
  /// Null when nothing names this entity, or what did has died.
  std::shared_ptr<T> lock() const {
    std::shared_ptr<T> result;
    InverseEntries::forEach([&result](std::shared_ptr<FcBase>&& entry) {
      result = std::static_pointer_cast<T>(std::move(entry));
    });
    return result;
  }
};

}  // namespace qor::fc
