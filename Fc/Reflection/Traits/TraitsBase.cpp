#include "Fc/Reflection/Traits/TraitsBase.h"

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

}  // namespace qor::fc
