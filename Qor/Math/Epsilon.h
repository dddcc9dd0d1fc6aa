#pragma once

#include "Qor/Platform/Export.h"

namespace qor::math {

/// The tolerances that geometry is compared with, one set for each thread.
///
/// A thread starts with those that fit coordinates up to 1000 m. Read at the place of use.
struct QOR_API Epsilon {
  double general = 1e-6;
  double angle = 1e-6;   ///< radians
  double length = 1e-6;  ///< metres

  /// Those of this thread, which may be written to.
  static Epsilon& current();
  /// Makes those of this thread fit coordinates up to `extent` metres: general and length are
  /// 1e-9 of it, the angle stays 1e-6. The flag has no effect.
  static void set(double extent, bool flag);
};

/// Gives this thread back the tolerances that it had when this was made.
class EpsilonSave {
 public:
  EpsilonSave() : m_saved(Epsilon::current()) {}
  EpsilonSave(const EpsilonSave&) = delete;
  EpsilonSave& operator=(const EpsilonSave&) = delete;
  ~EpsilonSave() { Epsilon::current() = m_saved; }

 private:
  Epsilon m_saved;
};

}  // namespace qor::math
