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

void forEachHolder(const TypeOperations&, const void* member, EntityCallback callback) {
  entriesOf(member).forEach(
      [&callback](const std::shared_ptr<FcBase>& holder) { callback(*holder); });
}

LocalValue holders(const TypeOperations&, const void* member) {
  LocalValue::List values;
  entriesOf(member).forEach(
      [&values](std::shared_ptr<FcBase>&& holder) { values.emplace_back(std::move(holder)); });
  return LocalValue(std::move(values));
}

LocalValue holder(const TypeOperations&, const void* member) {
  LocalValue value{details::EmptyValue()};
  entriesOf(member).forEach(
      [&value](std::shared_ptr<FcBase>&& entity) { value = LocalValue(std::move(entity)); });
  return value;
}

constexpr TypeFunctions inverseFunctions(LocalValue (*getLocalValue)(const TypeOperations&,
                                                                     const void*)) {
  return {
      [](const TypeOperations&, const void*) -> std::optional<std::string> { return std::nullopt; },
      [](const TypeOperations&, void*, const std::string&) { return false; },
      getLocalValue,
      [](const TypeOperations&, void*, const LocalValue&) { return false; },
      forEachHolder,
      forEachHolder,
      [](const TypeOperations&, void*, ValueSource&) { return false; },
      [](const TypeOperations&, const void*, ValueSink& sink) { sink.null(); },
      [](const TypeOperations&, void*, const void*, FcCopySettings&) {},
      [](const TypeOperations&, const void*, const void*, PairCallback) -> std::weak_ordering {
        return std::weak_ordering::equivalent;
      }};
}

constexpr TypeFunctions setFunctions = inverseFunctions(holders);
constexpr TypeFunctions refFunctions = inverseFunctions(holder);

}  // namespace

constinit const TypeOperations inverseSetOperations = {TypeFamily::inverse, true, nullptr, nullptr,
                                                       &setFunctions};
constinit const TypeOperations inverseRefOperations = {TypeFamily::inverse, true, nullptr, nullptr,
                                                       &refFunctions};

}  // namespace qor::fc
