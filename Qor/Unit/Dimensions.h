#pragma once

namespace qor::unit {

/// The exponents of the seven base quantities of the SI.
struct Dimensions {
  int length = 0;
  int mass = 0;
  int time = 0;
  int electricCurrent = 0;
  int temperature = 0;
  int amountOfSubstance = 0;
  int luminousIntensity = 0;

  friend bool operator==(const Dimensions&, const Dimensions&) = default;
};

}  // namespace qor::unit
