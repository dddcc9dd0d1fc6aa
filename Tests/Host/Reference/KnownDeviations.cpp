#include "Tests/Host/Reference/KnownDeviations.h"

namespace qor::test {

const std::vector<KnownDeviation>& knownDeviations() {
  constexpr const char* cut = "cut by openings or half-spaces, which needs the solid modeller";
  constexpr const char* wide = "an arc of so wide a radius that 72 segments leave it by 4 mm";
  static const std::vector<KnownDeviation> deviations{
      {"AC20-FZK-Haus", "IFCWALLSTANDARDCASE", cut, true},
      {"AC20-FZK-Haus", "IFCSLAB", cut, true},
      {"Ifc4_SampleHouse", "IFCWALLSTANDARDCASE", cut, true},
      {"Ifc4_SampleHouse", "IFCWALL", cut, true},
      {"Ifc4_SampleHouse", "09J5N7xMHBfQZeQGAEMom0", cut, true},
      {"Ifc4_SampleHouse", "09J5N7xMHBfQZeQGAEMom3", cut, true},
      {"Ifc4_SampleHouse", "09J5N7xMHBfQZeQGAEMom9", wide},
      {"Ifc4_SampleHouse", "3cUkl32yn9qRSPvBJVyW_5", wide},
      {"duplex", "IFCWALLSTANDARDCASE", cut, true},
      {"duplex", "IFCFURNISHINGELEMENT", cut, true},
      {"duplex", "IFCSLAB", cut, true},
      {"IfcWallWithIfcBooleanClippingResult1", "IFCWALLSTANDARDCASE", cut, true},
      {"slab-openings", "IFCSLAB", cut, true},
      {"curve-parameters-in-degrees", "3vcm8ZmFfDwhpgzzT7EP8n",
       "the extreme of an arc lies between two of its points, 2 mm behind their chord"},
      {"linear-placement-of-signal", "0t_GtwGFT0nPszZsjyA9w4",
       "stands in a frame along an alignment", true},
      {"linear-placement-of-signal", "1gnEPB6qvEY89wQ0JBMc5c",
       "stands in a frame along an alignment", true},
  };
  return deviations;
}

}  // namespace qor::test
