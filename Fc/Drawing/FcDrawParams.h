#pragma once

#include "Fc/Drawing/FcDrawInterface.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// What one draw needs: the target, which isn't owned, and how much it may cost. Converts to its
/// target, and `params->polygonalFaceSet(...)` draws into it.
class QOR_API FcDrawParams {
 public:
  explicit FcDrawParams(FcDrawInterface& target) : m_target(&target) {}
  /// The same for another target.
  FcDrawParams(const FcDrawParams& params, FcDrawInterface& target)
      : skipExpensiveClipping(params.skipExpensiveClipping), m_target(&target) {}

  operator FcDrawInterface&() const {
    return *m_target;
  }  // NOLINT(google-explicit-constructor): stands for its target
  FcDrawInterface* operator->() const { return m_target; }

  /// Openings with tessellated bodies or boundary representations aren't cut out.
  bool skipExpensiveClipping = false;

 private:
  FcDrawInterface* m_target;
};

}  // namespace qor::fc
