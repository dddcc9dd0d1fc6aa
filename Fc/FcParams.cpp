#include "Fc/FcParams.h"

#include "Qor/Draw/DrawInterfaceBase.h"

namespace qor::fc {

FcParams::FcParams(const FcParams& other) : FcParams(other, other.curveDiscretization()) {}

FcParams::FcParams(const FcParams& other, const math::CurveDiscretization& discretization)
    : skipExpensiveClipping(other.skipExpensiveClipping),
      m_curveDiscretization(discretization.copy()) {}

FcParams::FcParams(const math::CurveDiscretization& discretization)
    : m_curveDiscretization(discretization.copy()) {}

FcParams::FcParams(const generate::draw::DrawInterfaceBase& target)
    : FcParams(target.curveDiscretization()) {}

FcParams& FcParams::operator=(const FcParams& other) {
  if (this != &other) *this = FcParams(other);
  return *this;
}

}  // namespace qor::fc
