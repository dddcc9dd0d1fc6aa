#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Fc/Data.h"
#include "Qor/Id/Guid.h"

namespace qor::fc {

/// A holder of named sets of class `T`, which are `FcPropertySet` or `FcMaterialProperties`. Names
/// are compared exactly; a set without one is never found by name.
template <class T>
class PropertiesInterface {
 public:
  virtual ~PropertiesInterface() = default;

  virtual void propertySetAdd(Data& data, std::shared_ptr<T> set) = 0;
  /// False when there is no set of that name.
  virtual bool deletePropertySet(Data& data, const std::string& name) = 0;
  /// Calls back with each set until the callback answers true; gives that set, null for none.
  virtual std::shared_ptr<const T> traversePropertySets(
      const std::function<bool(const T&)>& callback) const = 0;
  virtual std::shared_ptr<T> traversePropertySets(
      const std::function<bool(const T&)>& callback) = 0;

  std::vector<std::shared_ptr<T>> getPropertySets() const {
    std::vector<std::shared_ptr<T>> sets;
    traversePropertySets([&sets](const T& set) {
      sets.push_back(std::static_pointer_cast<T>(const_cast<T&>(set).shared_from_this()));
      return false;
    });
    return sets;
  }
  std::shared_ptr<T> getPropertySetNonConst(const std::string& name) {
    return traversePropertySets([&name](const T& set) { return set.Name() == name; });
  }
  /// The set of that name; where there is none, a new one that is listed in `data` and added here.
  std::shared_ptr<T> getOrCreatePropertySet(Data& data, const std::string& name) {
    if (auto found = getPropertySetNonConst(name)) return found;
    auto set = data.create<T>();
    if constexpr (requires { set->setGlobalId(Guid()); }) set->setGlobalId(Guid::generate());
    set->setName(name);
    propertySetAdd(data, set);
    return set;
  }
};

}  // namespace qor::fc
