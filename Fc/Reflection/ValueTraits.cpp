#include "Fc/Reflection/ValueTraits.h"

namespace qor::fc {

bool rejectNext(ValueSource& source, Rejection reason, const TypeOperations& expected) {
  source.rejected(reason, {}, expected);
  source.skip();
  return false;
}

bool skipNull(ValueSource& source) {
  const ValueSource::Kind kind = source.next();
  if (kind != ValueSource::Kind::null && kind != ValueSource::Kind::derived) return false;
  source.skip();
  return true;
}

bool ValueTraits<Guid>::read(Guid& m, ValueSource& source, const TypeOperations& self) {
  if (source.next() != ValueSource::Kind::text)
    return rejectNext(source, Rejection::wrongKind, self);
  std::string text;
  source.takeText(text);
  if (text.size() == 22 && m.boSet(text)) return true;
  source.rejected(Rejection::outOfRange, text, self);
  return false;
}

void ValueTraits<Guid>::write(const Guid& m, ValueSink& sink) {
  char text[22];
  m.toCharacters(text);
  sink.text({text, sizeof text});
}

bool ValueTraits<std::vector<std::uint8_t>>::read(Bytes& m, ValueSource& source,
                                                  const TypeOperations& self) {
  if (source.next() != ValueSource::Kind::binary)
    return rejectNext(source, Rejection::wrongKind, self);
  source.takeBinary(m);
  return true;
}

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
