#pragma once

#include <memory>
#include <string>

#include "Qor/Platform/Export.h"

namespace qor::fc {

/// A set of properties of class `T`.
template <class T>
class PropertyInterface {
 public:
  virtual ~PropertyInterface() = default;

  /// Takes the first property of that name out of the set; false for none. The property stays in
  /// its model.
  virtual bool deleteProperty(const std::string& name) = 0;
  /// No effect when the set holds the property already.
  virtual void addProperty(std::shared_ptr<T> property) = 0;
};

}  // namespace qor::fc
