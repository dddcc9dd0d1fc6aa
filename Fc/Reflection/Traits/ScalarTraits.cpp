#include "Fc/Reflection/Traits/ScalarTraits.h"

#include "Fc/Reflection/GuidChanges.h"

#include <string_view>

namespace qor::fc {

namespace {

struct TextTraits : ScalarTraits<std::string> {
  static bool read(std::string& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::text)
      return rejectNext(source, Rejection::wrongKind, self);
    source.takeText(m);
    return true;
  }
  static void write(const std::string& m, ValueSink& sink) { sink.text(m); }
};

struct BooleanTraits : ScalarTraits<bool> {
  static bool read(bool& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::enumerator)
      return rejectNext(source, Rejection::wrongKind, self);
    const std::string_view name = source.takeEnumerator();
    if (name == "T" || name == "F") {
      m = name == "T";
      return true;
    }
    source.rejected(Rejection::unknownEnumerator, name, self);
    return false;
  }
  static void write(bool m, ValueSink& sink) { sink.enumerator(m ? "T" : "F"); }
};

struct LogicalTraits : ScalarTraits<LogicalValue> {
  static bool read(LogicalValue& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::enumerator)
      return rejectNext(source, Rejection::wrongKind, self);
    const std::string_view name = source.takeEnumerator();
    if (name == "T" || name == "F" || name == "U") {
      m = name == "T"   ? LogicalValue::True
          : name == "F" ? LogicalValue::False
                        : LogicalValue::Unknown;
      return true;
    }
    source.rejected(Rejection::unknownEnumerator, name, self);
    return false;
  }
  static void write(LogicalValue m, ValueSink& sink) {
    sink.enumerator(m == LogicalValue::True ? "T" : m == LogicalValue::False ? "F" : "U");
  }
};

struct GuidTraits : ScalarTraits<Guid> {
  static bool setFromString(Guid& m, const std::string& text) {
    noteGuidChange();
    return ScalarTraits::setFromString(m, text);
  }
  static bool setLocalValue(Guid& m, const LocalValue& v) {
    noteGuidChange();
    return ScalarTraits::setLocalValue(m, v);
  }
  static bool read(Guid& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::text)
      return rejectNext(source, Rejection::wrongKind, self);
    std::string text;
    source.takeText(text);
    noteGuidChange();
    if (text.size() == 22 && m.boSet(text)) return true;
    source.rejected(Rejection::outOfRange, text, self);
    return false;
  }
  static void write(const Guid& m, ValueSink& sink) {
    char text[22];
    m.toCharacters(text);
    sink.text({text, sizeof text});
  }
};

struct BinaryTraits : ScalarTraits<std::vector<std::uint8_t>> {
  using Bytes = std::vector<std::uint8_t>;
  static bool setFromString(Bytes&, const std::string&) { return setMemberFromStringPrimitive(); }
  static bool read(Bytes& m, ValueSource& source, const TypeOperations& self) {
    if (source.next() != ValueSource::Kind::binary)
      return rejectNext(source, Rejection::wrongKind, self);
    source.takeBinary(m);
    return true;
  }
  static void write(const Bytes& m, ValueSink& sink) { sink.binary(m); }
  static std::weak_ordering compare(const Bytes& a, const Bytes& b) {
    return a.size() != b.size() ? std::weak_ordering(a.size() <=> b.size()) : orderOf(a, b);
  }
};

}  // namespace

constinit const TypeFunctions realFunctions = TypedFunctions<double>::table;
constinit const TypeFunctions integerFunctions = TypedFunctions<std::int64_t>::table;
constinit const TypeFunctions textFunctions = TypedFunctions<std::string, TextTraits>::table;
constinit const TypeFunctions booleanFunctions = TypedFunctions<bool, BooleanTraits>::table;
constinit const TypeFunctions logicalFunctions = TypedFunctions<LogicalValue, LogicalTraits>::table;
constinit const TypeFunctions guidFunctions = TypedFunctions<Guid, GuidTraits>::table;
constinit const TypeFunctions binaryFunctions =
    TypedFunctions<std::vector<std::uint8_t>, BinaryTraits>::table;

}  // namespace qor::fc
