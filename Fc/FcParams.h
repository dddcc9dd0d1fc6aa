#pragma once

#include <memory>

#include "Qor/Math/CurveDiscretization.h"
#include "Qor/Platform/Export.h"

namespace qor::generate::draw {
class DrawInterfaceBase;
}

namespace qor::fc {

class FcDrawParams;

/// What an evaluation needs that draws nothing itself. A value: it owns its discretization, so that
/// it may go to another thread.
class QOR_API FcParams {
 public:
  FcParams(const FcParams& other);
  /// `other` with another discretization.
  FcParams(const FcParams& other, const math::CurveDiscretization& discretization);
  explicit FcParams(const math::CurveDiscretization& discretization);
  /// The discretization that the target wants.
  explicit FcParams(const generate::draw::DrawInterfaceBase& target);
  /// The discretization that the target wants, the rest as the draw has it.
  explicit FcParams(const FcDrawParams& params);
  FcParams(FcParams&&) noexcept = default;
  FcParams& operator=(const FcParams& other);
  FcParams& operator=(FcParams&&) noexcept = default;
  ~FcParams() = default;

  math::CurveDiscretization& curveDiscretization() { return *m_curveDiscretization; }
  const math::CurveDiscretization& curveDiscretization() const { return *m_curveDiscretization; }

  /// Openings with tessellated bodies or boundary representations aren't cut out.
  bool skipExpensiveClipping = false;

 private:
  std::unique_ptr<math::CurveDiscretization> m_curveDiscretization;
};

}  // namespace qor::fc
