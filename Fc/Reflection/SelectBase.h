#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "Fc/Reflection/SelectInfo.h"
#include "Qor/Assert/Exception.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// What all select classes share: the current alternative and its value, worked on by a
/// `SelectInfo`.
///
/// A value of up to two words stands in place, a larger one on the heap; the select owns it either
/// way.
class QOR_API SelectBase {
 public:
  SelectBase(const SelectBase&) = delete;
  SelectBase& operator=(const SelectBase&) = delete;

  /// The position of the current alternative; the number of alternatives is unknown here, so NotSet
  /// is `npos`.
  static constexpr std::uint32_t npos = 0xFFFFFFFF;

 protected:
  SelectBase() noexcept {}  // not defaulted, so that a constant select needs no initializer
  ~SelectBase() = default;

  std::uint32_t position() const { return m_position; }
  void* value(const SelectInfo& info) {
    return at(info).inPlace ? static_cast<void*>(m_place) : heap();
  }
  const void* value(const SelectInfo& info) const {
    return const_cast<SelectBase*>(this)->value(info);
  }

  void reset(const SelectInfo& info);
  /// Makes the select that alternative with a default value; `npos` for NotSet.
  void* make(const SelectInfo& info, std::uint32_t position);
  /// For a select that is NotSet; it stays so when the copy throws.
  void copyFrom(const SelectInfo& info, const SelectBase& other);
  void moveFrom(const SelectInfo& info, SelectBase& other);

  FcBase* getEntity(const SelectInfo& info) const;
  std::optional<double> number(const SelectInfo& info) const;
  bool setNumber(const SelectInfo& info, double number);
  LocalValue getLocalValue(const SelectInfo& info) const;
  bool setLocalValue(const SelectInfo& info, const LocalValue& value);
  std::optional<std::string> getAsString(const SelectInfo& info, bool withType) const;
  bool setFromString(const SelectInfo& info, const std::string& text);
  bool setTypeFromString(const SelectInfo& info, const std::string& name);
  bool setValueOnTypeFromString(const SelectInfo& info, const std::string& text);
  void forEachEntity(const SelectInfo& info, TypeOperations::EntityCallback callback) const;
  bool read(const SelectInfo& info, ValueSource& source, const TypeOperations& expected);
  void write(const SelectInfo& info, ValueSink& sink) const;
  void assign(const SelectInfo& info, const SelectBase& source, FcCopySettings& settings);
  std::weak_ordering compare(const SelectInfo& info, const SelectBase& other,
                             TypeOperations::PairCallback defer) const;
  bool isLessThan(const SelectInfo& info, const SelectBase& other) const;

  template <class D>
  friend class Select;
  friend struct SelectFunctions;

 private:
  class Candidate;

  template <class Fill>
  void build(const SelectInfo& info, std::uint32_t position, Fill&& fill);
  const AlternativeOperations& at(const SelectInfo& info) const {
    return *info.alternatives[m_position].operations;
  }
  void* heap() const;
  /// The select that an alternative is, from the address of its value.
  static SelectBase& nestedAt(void* value) { return *static_cast<SelectBase*>(value); }
  static const SelectBase& nestedAt(const void* value) {
    return *static_cast<const SelectBase*>(value);
  }
  bool setNamed(const SelectInfo& info, const LocalValue& value);
  bool setEntity(const SelectInfo& info, const std::shared_ptr<FcBase>& entity);
  bool readEntity(const SelectInfo& info, ValueSource& source, const TypeOperations& expected);
  bool readTyped(const SelectInfo& info, std::string_view upperName, ValueSource& source);

  alignas(std::max_align_t) std::byte m_place[16];
  std::uint32_t m_position = npos;
};

/// A class below `Base`: where a select takes a pointer to `Base`, it takes one to that class too.
template <class Entity, class Base>
concept Below = !std::is_same_v<Entity, Base> && std::is_convertible_v<Entity*, Base*>;

/// A select class `D` of the schema: one of several entities or values, or nothing (NotSet).
///
/// `D` has the enumeration `Types` with its alternatives in ascending order and a last `NotSet`,
/// `static const SelectInfo& info()`, a constructor from each alternative (and from the classes
/// below it), and a getter of each
/// alternative's name, which throws `qor::exception` ("Not of correct type") when another one is
/// current. Copies clone the value; entities are shared.
template <class D>
class Select : public SelectBase {
 public:
  Select() = default;
  Select(const Select& other) : SelectBase() { copyFrom(D::info(), other); }
  Select(Select&& other) noexcept : SelectBase() { moveFrom(D::info(), other); }
  /// A copy whose entity is copied too, as `settings` says.
  Select(const D& other, FcCopySettings& settings) { assign(other, settings); }
  Select& operator=(const Select& other) { return *this = Select(other); }
  Select& operator=(Select&& other) noexcept {
    if (this != &other) moveFrom(D::info(), other);
    return *this;
  }
  ~Select() { reset(D::info()); }

  auto type() const {
    using Types = typename D::Types;
    return m_position == npos ? Types::NotSet : static_cast<Types>(m_position);
  }
  bool isSet() const { return m_position != npos; }
  /// Makes the select that alternative, with a default value (a null pointer for an entity).
  template <class Types>
  void set(Types type) {
    make(D::info(), type == Types::NotSet ? npos : static_cast<std::uint32_t>(type));
  }

  /// Becomes a copy of `source`: a value is copied, an entity through `settings` (see
  /// `FcBase::allocateAndQueueCopy`).
  void assign(const D& source, FcCopySettings& settings) {
    SelectBase::assign(D::info(), source, settings);
  }
  void duplicate(const D& source, FcCopySettings& settings) { assign(source, settings); }

  /// First by alternative, then by value; entities by their content. NotSet is the last.
  friend bool operator<(const D& a, const D& b) { return a.SelectBase::isLessThan(D::info(), b); }

  /// The current entity; null for a value and for NotSet.
  FcBase* getEntity() const { return SelectBase::getEntity(D::info()); }
  LocalValue getLocalValue() const { return SelectBase::getLocalValue(D::info()); }
  /// An entity picks its alternative by class, a value by its `typeName`, which may be left out
  /// where the select has a single value alternative. False, and no change, when nothing fits.
  bool setLocalValue(const LocalValue& value) {
    return SelectBase::setLocalValue(D::info(), value);
  }
  /// "2.500000", or "LengthMeasure(2.500000)" with the type. Empty for NotSet and, with an assert,
  /// for an entity.
  std::optional<std::string> getAsString(bool withType) const {
    return SelectBase::getAsString(D::info(), withType);
  }
  /// Takes "LengthMeasure(2.5)". When the value can't be read the type has changed all the same.
  bool setFromString(const std::string& text) { return SelectBase::setFromString(D::info(), text); }
  bool setTypeFromString(const std::string& name) {
    return SelectBase::setTypeFromString(D::info(), name);
  }
  /// Only in selects that hold values.
  template <class Self = D>
  bool setValueOnTypeFromString(const std::string& text) requires(Self::hasValues) {
    return SelectBase::setValueOnTypeFromString(D::info(), text);
  }

  template <class Types>
  static const char* nameFromEnum(Types type) {
    return type == Types::NotSet
               ? "NotSet"
               : D::info().alternatives[static_cast<std::size_t>(type)].name.data();
  }
  /// Empty for a null pointer or an unknown name.
  static auto enumFromName(const char* name) {
    std::optional<typename D::Types> result;
    if (!name) return result;
    const auto& lookup = getNamesLookup();
    const auto found = lookup.find(name);
    if (found != lookup.end()) result = static_cast<typename D::Types>(found->second);
    return result;
  }
  /// The names of all alternatives, without NotSet.
  static std::vector<std::string> enumNames() {
    std::vector<std::string> names;
    for (const AlternativeInfo& alternative : D::info().alternatives)
      names.emplace_back(alternative.name);
    return names;
  }

 protected:
  /// The number of a real or an integer alternative, a nested select's too; empty for any other.
  std::optional<double> number() const { return SelectBase::number(D::info()); }
  /// Stores into such an alternative, an integer cut off behind the point. False, and no change,
  /// for any other alternative and for what no integer can hold.
  bool setNumber(double value) { return SelectBase::setNumber(D::info(), value); }

  template <class T, class Types>
  const T& get(Types type) const {
    if (this->type() != type) throw qor::exception("Not of correct type");
    return *static_cast<const T*>(value(D::info()));
  }
  template <class T, class Types>
  void put(Types type, T&& value) {
    *static_cast<std::remove_cvref_t<T>*>(make(D::info(), static_cast<std::uint32_t>(type))) =
        std::forward<T>(value);
  }

 private:
  static const std::map<std::string, std::uint32_t>& getNamesLookup() {
    static const std::map<std::string, std::uint32_t> lookup = [] {
      std::map<std::string, std::uint32_t> names;
      const auto alternatives = D::info().alternatives;
      for (std::size_t i = 0; i < alternatives.size(); ++i)
        names.emplace(alternatives[i].name, static_cast<std::uint32_t>(i));
      return names;
    }();
    return lookup;
  }
};

}  // namespace qor::fc
