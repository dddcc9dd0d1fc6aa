// What an evaluation takes over from a draw.

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcParams.h"

namespace qor::fc {

FcParams::FcParams(const FcDrawParams& params) : FcParams(params->curveDiscretization()) {
  skipExpensiveClipping = params.skipExpensiveClipping;
}

}  // namespace qor::fc
