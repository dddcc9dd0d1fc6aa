#include "Fc/Reflection/Traits/ListTraits.h"

#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "Fc/HelperFunctions.h"

namespace qor::fc {

namespace {

const ListOperations& recordOf(const TypeOperations& type) {
  return static_cast<const ListOperations&>(type);
}

/// The elements of one list by their positions. Valid until the list grows.
class Elements {
 public:
  Elements(const TypeOperations& type, const void* m)
      : m_size(recordOf(type).elementSize),
        m_elements(recordOf(type).elements(const_cast<void*>(m))) {}

  std::size_t count() const { return m_elements.count; }
  const void* operator[](std::size_t i) const { return m_elements.first + i * m_size; }

 private:
  std::size_t m_size;
  ListOperations::Elements m_elements;
};

// "(a, b, c)"; empty when one element has no text.
std::optional<std::string> getAsString(const TypeOperations& type, const void* m) {
  if (type.entitiesOnly) return getMemberAsStringObject();
  const Elements elements(type, m);
  std::string text = "(";
  for (std::size_t i = 0; i < elements.count(); ++i) {
    const auto part = recordOf(type).element->getAsString(elements[i]);
    if (!part) return std::nullopt;
    if (i > 0) text += ", ";
    text += *part;
  }
  return text + ")";
}

bool setFromString(const TypeOperations& type, void*, const std::string&) {
  return type.entitiesOnly ? setMemberFromStringObject() : setMemberFromStringPrimitive();
}

LocalValue getLocalValue(const TypeOperations& type, const void* m) {
  const Elements elements(type, m);
  LocalValue::List values;
  values.reserve(elements.count());
  for (std::size_t i = 0; i < elements.count(); ++i)
    values.push_back(recordOf(type).element->getLocalValue(elements[i]));
  return LocalValue(std::move(values));
}

bool setLocalValue(const TypeOperations& type, void* m, const LocalValue& v) {
  const ListOperations& list = recordOf(type);
  const std::size_t before = list.elements(m).count;
  if (v.isEmpty()) {
    list.keep(m, before, before);
    return true;
  }
  const auto* values = std::get_if<LocalValue::List>(&v.value);
  if (!values) return false;
  // Behind the present elements, which stay when one of the values doesn't fit.
  for (const LocalValue& value : *values) {
    if (list.element->setLocalValue(list.append(m), value)) continue;
    list.keep(m, 0, before);
    return false;
  }
  list.keep(m, before, before + values->size());
  return true;
}

void forEachEntity(const TypeOperations& type, const void* m, EntityCallback callback) {
  const Elements elements(type, m);
  for (std::size_t i = 0; i < elements.count(); ++i)
    recordOf(type).element->forEachEntity(elements[i], callback);
}

void forEachTarget(const TypeOperations& type, const void* m, EntityCallback callback) {
  const Elements elements(type, m);
  for (std::size_t i = 0; i < elements.count(); ++i)
    recordOf(type).element->forEachTarget(elements[i], callback);
}

// An element that doesn't fit is left out, the others stay.
bool read(const TypeOperations& type, void* m, ValueSource& source) {
  if (source.next() != ValueSource::Kind::list)
    return rejectNext(source, Rejection::wrongKind, type);
  const ListOperations& list = recordOf(type);
  if (list.elements(m).count > 0) list.keep(m, 0, 0);
  std::size_t count = 0;
  void* place = nullptr;  // of an element that is still to be filled
  source.openList();
  while (source.more()) {
    if (!place) place = list.append(m);
    if (!list.element->read(place, source)) continue;
    place = nullptr;
    ++count;
  }
  list.keep(m, 0, count);
  return true;
}

void write(const TypeOperations& type, const void* m, ValueSink& sink) {
  const Elements elements(type, m);
  sink.openList();
  for (std::size_t i = 0; i < elements.count(); ++i)
    recordOf(type).element->write(elements[i], sink);
  sink.closeList();
}

void assign(const TypeOperations& type, void* m, const void* source, FcCopySettings& settings) {
  const ListOperations& list = recordOf(type);
  if (list.copy) {
    list.copy(m, source);
    return;
  }
  list.keep(m, 0, 0);
  const Elements elements(type, source);
  for (std::size_t i = 0; i < elements.count(); ++i)
    list.element->assign(list.append(m), elements[i], settings);
  list.keep(m, 0, elements.count());
}

// A shorter list is less than a longer one, lists of one length go by their first difference.
std::weak_ordering compare(const TypeOperations& type, const void* a, const void* b,
                           PairCallback defer) {
  const Elements elementsA(type, a), elementsB(type, b);
  if (elementsA.count() != elementsB.count()) return elementsA.count() <=> elementsB.count();
  for (std::size_t i = 0; i < elementsA.count(); ++i)
    if (const auto order = recordOf(type).element->compare(elementsA[i], elementsB[i], defer);
        order != 0)
      return order;
  return std::weak_ordering::equivalent;
}

}  // namespace

constinit const TypeFunctions listFunctions = {
    getAsString,   setFromString, getLocalValue, setLocalValue, forEachEntity,
    forEachTarget, read,          write,         assign,        compare};

}  // namespace qor::fc
