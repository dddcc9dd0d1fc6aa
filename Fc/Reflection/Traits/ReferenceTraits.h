#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "Fc/FcBase.h"
#include "Fc/HelperFunctions.h"
#include "Fc/Reflection/Traits/TraitsBase.h"

namespace qor::fc {

template <class T>
struct ValueTraits<std::shared_ptr<T>> {
  using Reference = std::shared_ptr<T>;
  static constexpr TypeFamily family = TypeFamily::reference;
  static constexpr bool entitiesOnly = true;
  static constexpr const EnumInfo* enumeration = nullptr;
  static constexpr const SelectInfo* select = nullptr;

  static std::optional<std::string> getAsString(const Reference&) {
    return getMemberAsStringObject();
  }
  static bool setFromString(Reference&, const std::string&) { return setMemberFromStringObject(); }
  static LocalValue getLocalValue(const Reference& m) {
    return m ? LocalValue(std::static_pointer_cast<FcBase>(m)) : LocalValue(details::EmptyValue());
  }
  static bool setLocalValue(Reference& m, const LocalValue& v) {
    if (v.isEmpty()) {
      m.reset();
      return true;
    }
    const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&v.value);
    if (!entity) return false;
    m = fcCast<T>(*entity);
    return true;
  }
  static void forEachEntity(const Reference& m, TypeOperations::EntityCallback callback) {
    if (m) callback(*m);
  }
  static bool read(Reference& m, ValueSource& source, const TypeOperations& self) {
    m.reset();
    if (source.next() != ValueSource::Kind::entity) {
      if (skipNull(source)) return true;
      return rejectNext(source, Rejection::wrongKind, self);
    }
    const std::shared_ptr<FcBase>* entity = source.takeEntity();
    if (!entity) return false;
    m = fcCast<T>(*entity);
    if (!m) source.rejected(Rejection::wrongClass, (*entity)->ifcNameUpper(), self);
    return m != nullptr;
  }
  static void write(const Reference& m, ValueSink& sink) {
    if (m)
      sink.entity(*m);
    else
      sink.null();
  }
  static void assign(Reference& m, const Reference& source, FcCopySettings& settings) {
    m = source ? fcCast<T>(source->allocateAndQueueCopy(settings)) : nullptr;
  }
  static std::weak_ordering compare(const Reference& a, const Reference& b,
                                    TypeOperations::PairCallback defer) {
    if (a && b) defer(*a, *b);
    return (a != nullptr) <=> (b != nullptr);
  }
};

}  // namespace qor::fc
