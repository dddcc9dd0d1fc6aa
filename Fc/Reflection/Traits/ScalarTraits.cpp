#include "Fc/Reflection/Traits/ScalarTraits.h"

namespace qor::fc {

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

}  // namespace qor::fc
