#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "Qor/Object/FixedString.h"
#include "Qor/Platform/Export.h"

namespace qor::object {

/// Addresses an attribute by its EXPRESS name, such as "PredefinedType". Two ids are the same when
/// their names are, byte for byte; the class that declares the attribute is no part of it.
class QOR_API PropertyId {
 public:
  explicit PropertyId(std::string name) : m_name(std::move(name)) {}

  const std::string& name() const { return m_name; }
  std::size_t hash() const { return std::hash<std::string>()(m_name); }

  /// The one id of that name that lives as long as the program, made on the first call. A look-up
  /// under a lock: callers keep the reference.
  static const PropertyId& interned(std::string_view name);

  friend bool operator==(const PropertyId&, const PropertyId&) = default;

 private:
  std::string m_name;
};

/// The id of `Name`, interned: the same object on each call. Thread-safe.
///
/// `&propertyId<"Name">` is a constant of type `const PropertyId& (*)()`, fit for tables that need
/// no start-up code.
template <FixedString Name>
const PropertyId& propertyId() {
  static const PropertyId& id = PropertyId::interned(Name.view());
  return id;
}

}  // namespace qor::object

template <>
struct std::hash<qor::object::PropertyId> {
  std::size_t operator()(const qor::object::PropertyId& id) const { return id.hash(); }
};
