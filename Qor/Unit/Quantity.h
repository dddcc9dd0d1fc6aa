#pragma once

#include <string>
#include <type_traits>

#include "Qor/Unit/QuantityBase.h"
#include "Qor/Unit/QuantityPresentation.h"
#include "Qor/Unit/Unit.h"

namespace qor::unit {

/// A quantity by its id and its exponents of length, mass, time, electric current, temperature,
/// amount of substance and luminous intensity.
template <QuantityId Id, int L, int M, int T, int I, int Th, int N, int J>
class Quantity final : public QuantityBase {
 public:
  /// The unit of the numbers that its presentations hold.
  using BaseUnit = std::conditional_t<hasOwnUnit(Id), Unit<0, Quantity>, SiUnit<0, Quantity>>;

  Quantity() : QuantityBase(Id, {L, M, T, I, Th, N, J}) {}

  std::unique_ptr<QuantityPresentationBase> createPresentation(double number) const override {
    return std::make_unique<QuantityPresentation<BaseUnit>>(qppDefault(), *this, number,
                                                            std::string());
  }
};

}  // namespace qor::unit
