#include "Qor/Math/Epsilon.h"

namespace qor::math {

Epsilon& Epsilon::current() {
  static thread_local Epsilon tolerances;
  return tolerances;
}

void Epsilon::set(double extent, bool) {
  current() = {.general = extent * 1e-9, .angle = 1e-6, .length = extent * 1e-9};
}

}  // namespace qor::math
