#pragma once

#include <cstddef>

#include "Qor/Unit/QuantityId.h"

namespace qor::unit {

/// The unit at position `Index` of the units of the quantity class `Q`, as a type.
template <std::size_t Index, class Q>
struct Unit {
  using QuantityType = Q;
  static constexpr std::size_t index = Index;
};

/// A unit of the SI whose meaning is the product of the quantity's exponents.
template <std::size_t Index, class Q>
struct SiUnit : Unit<Index, Q> {};

/// The unit is told by name, not by the exponents of the quantity.
constexpr bool hasOwnUnit(QuantityId id) {
  return id == QuantityId::WarpingMoment || id == QuantityId::MolecularWeight ||
         id == QuantityId::ElectricVoltage || id == QuantityId::ElectricResistance ||
         id == QuantityId::Frequency;
}

}  // namespace qor::unit
