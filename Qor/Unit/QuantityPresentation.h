#pragma once

#include <string>
#include <utility>

#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::unit {

/// A presentation of a number in the unit `U`, so that a user interface can tell by a cast what it
/// has before it.
template <class U>
class QuantityPresentation final : public QuantityPresentationBase {
 public:
  using UnitType = U;

  QuantityPresentation(QppSettings settings, const typename U::QuantityType& quantity,
                       double number, std::string text)
      : QuantityPresentationBase(std::move(settings), quantity, number, std::move(text)) {}
};

}  // namespace qor::unit
