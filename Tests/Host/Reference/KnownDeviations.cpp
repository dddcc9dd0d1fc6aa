#include "Tests/Host/Reference/KnownDeviations.h"

namespace qor::test {

const std::vector<KnownDeviation>& knownDeviations() {
  constexpr const char* wide = "an arc of so wide a radius that 72 segments leave it by 4 mm";
  static const std::vector<KnownDeviation> deviations{
      {"Ifc4_SampleHouse", "09J5N7xMHBfQZeQGAEMom9", wide},
      {"Ifc4_SampleHouse", "3cUkl32yn9qRSPvBJVyW_5", wide},
      {"curve-parameters-in-degrees", "3vcm8ZmFfDwhpgzzT7EP8n",
       "the extreme of an arc lies between two of its points, up to 2 mm outside their chord"},
  };
  return deviations;
}

}  // namespace qor::test
