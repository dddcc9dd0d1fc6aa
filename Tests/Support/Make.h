#pragma once

#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "Fc/Data.h"
#include "Fc/FcBase.h"
#include "Fc/Reflection/MakeEntity.h"

namespace qor::fc::details {

/// What a failed expectation tells of a value.
void PrintTo(const LocalValue& value, std::ostream* out);

}  // namespace qor::fc::details

namespace qor::test {

/// An attribute's name and what it shall hold: a number, a flag, a text or enumerator, an entity,
/// or a list of any of them.
struct Attribute {
  template <class T>
  Attribute(const char* attributeName, const T& content)  // NOLINT: reads as a pair
      : name(attributeName), value(valueOf(content)) {}

  const char* name;
  fc::LocalValue value;

 private:
  template <class T>
  static fc::LocalValue valueOf(const T& content) {
    if constexpr (std::is_same_v<T, bool> || std::is_floating_point_v<T>)
      return fc::LocalValue(content);
    else if constexpr (std::is_integral_v<T>)
      return fc::LocalValue(static_cast<std::int64_t>(content));
    else if constexpr (std::is_convertible_v<T, std::string>)
      return fc::LocalValue(std::string(content));
    else
      return fc::LocalValue(std::shared_ptr<fc::FcBase>(content));
  }
  template <class T>
  static fc::LocalValue valueOf(const std::vector<T>& elements) {
    fc::LocalValue::List list;
    for (const T& element : elements) list.push_back(valueOf(element));
    return fc::LocalValue(std::move(list));
  }
};

/// Gives the entity these attributes; the test fails on one that its class doesn't have or that
/// can't hold the value.
void give(fc::FcBase& entity, std::initializer_list<Attribute> attributes);

/// A new entity with these attributes.
///
///     make<FcBlock>({{"XLength", 2}, {"YLength", 3}, {"Position", makePlacement(frame)}})
template <class T>
std::shared_ptr<T> make(std::initializer_list<Attribute> attributes = {}) {
  auto entity = fc::makeEntity<T>();
  give(*entity, attributes);
  return entity;
}

/// The same in a model.
template <class T>
std::shared_ptr<T> make(fc::Data& data, std::initializer_list<Attribute> attributes = {}) {
  auto entity = data.create<T>();
  give(*entity, attributes);
  return entity;
}

}  // namespace qor::test
