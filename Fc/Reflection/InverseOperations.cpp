#include "Fc/Reflection/InverseOperations.h"

#include "Fc/Reflection/InverseEntries.h"
#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"

namespace qor::fc {

namespace {

const InverseEntries& entriesOf(const void* member) {
  return *static_cast<const InverseEntries*>(member);
}

void forEachHolder(const void* member, TypeOperations::EntityCallback callback) {
  entriesOf(member).forEach(
      [&callback](const std::shared_ptr<FcBase>& holder) { callback(*holder); });
}

LocalValue holders(const void* member) {
  LocalValue::List values;
  entriesOf(member).forEach(
      [&values](std::shared_ptr<FcBase>&& holder) { values.emplace_back(std::move(holder)); });
  return LocalValue(std::move(values));
}

LocalValue holder(const void* member) {
  LocalValue value{details::EmptyValue()};
  entriesOf(member).forEach(
      [&value](std::shared_ptr<FcBase>&& entity) { value = LocalValue(std::move(entity)); });
  return value;
}

constexpr TypeOperations inverseOperations(LocalValue (*getLocalValue)(const void*)) {
  return {TypeFamily::inverse,
          true,
          nullptr,
          nullptr,
          [](const void*) -> std::optional<std::string> { return std::nullopt; },
          [](void*, const std::string&) { return false; },
          getLocalValue,
          [](void*, const LocalValue&) { return false; },
          forEachHolder,
          forEachHolder,
          [](void*, ValueSource&) { return false; },
          [](const void*, ValueSink& sink) { sink.null(); },
          [](void*, const void*, FcCopySettings&) {},
          [](const void*, const void*, TypeOperations::PairCallback) -> std::weak_ordering {
            return std::weak_ordering::equivalent;
          }};
}

}  // namespace

constinit const TypeOperations inverseSetOperations = inverseOperations(holders);
constinit const TypeOperations inverseRefOperations = inverseOperations(holder);

}  // namespace qor::fc
