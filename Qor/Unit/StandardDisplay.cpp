#include "Qor/Unit/StandardDisplay.h"

#include <map>

namespace qor::unit {

namespace {

using Id = QuantityId;
using Units = std::vector<DisplayUnit>;

constexpr double kPi = 3.14159265358979323846;
constexpr double kFoot = 0.3048;
constexpr double kFahrenheit = 5.0 / 9;

/// Zeros at the end tell how exactly a length was measured or rounded, and keep a column of them
/// aligned; they tell nothing about a voltage.
StandardDisplay aligned(Units units, int decimals = 3) { return {std::move(units), 0, decimals}; }
StandardDisplay plain(Units units, int decimals = 3) {
  return {std::move(units), 0, decimals, false};
}

const std::map<Id, StandardDisplay>& standardDisplays() {
  static const std::map<Id, StandardDisplay> displays = {
      {Id::Time, plain({{"s"}, {"min", 60}, {"h", 3600}, {"d", 86400}})},
      {Id::Length,
       aligned(
           {{"m"}, {"mm", 1e-3}, {"cm", 1e-2}, {"km", 1e3}, {"in", kFoot / 12}, {"ft", kFoot}})},
      {Id::Area, aligned({{"m²"},
                          {"mm²", 1e-6},
                          {"cm²", 1e-4},
                          {"ha", 1e4},
                          {"km²", 1e6},
                          {"ft²", kFoot * kFoot}})},
      {Id::Volume,
       aligned(
           {{"m³"}, {"mm³", 1e-9}, {"cm³", 1e-6}, {"l", 1e-3}, {"ft³", kFoot * kFoot * kFoot}})},
      {Id::LinearVelocity, aligned({{"m/s"}, {"km/h", 1 / 3.6}})},
      // Radians are for arithmetic: people read degrees.
      {Id::PlaneAngle, {{{"rad"}, {"°", kPi / 180}, {"gon", kPi / 200}}, 1, 2}},
      // Plain numbers, counts among them: as many decimals as there are.
      {Id::Count, plain({{""}}, 6)},
      {Id::Ratio, plain({{""}, {"%", 1e-2}, {"‰", 1e-3}}, 6)},
      // Not °C: half of these numbers are differences, which have no zero to move.
      {Id::Temperature,
       aligned({{"K"}, {"°C", 1, 273.15}, {"°F", kFahrenheit, 459.67 * kFahrenheit}}, 2)},
      {Id::Pressure,
       plain({{"Pa"}, {"hPa", 1e2}, {"kPa", 1e3}, {"MPa", 1e6}, {"bar", 1e5}, {"N/mm²", 1e6}})},
      {Id::Power, plain({{"W"}, {"kW", 1e3}, {"MW", 1e6}})},
      {Id::ThermalTransmittance, aligned({{"W/(m²·K)"}})},
      {Id::VolumetricFlowRate,
       plain({{"m³/s"}, {"m³/h", 1.0 / 3600}, {"l/s", 1e-3}, {"l/h", 1e-3 / 3600}}, 6)},
      {Id::ThermalConductivity, aligned({{"W/(m·K)"}})},
      {Id::MassDensity, aligned({{"kg/m³"}, {"g/cm³", 1e3}})},
      {Id::SpecificHeatCapacity, plain({{"J/(kg·K)"}, {"kJ/(kg·K)", 1e3}})},
      {Id::MassFlowRate, plain({{"kg/s"}, {"kg/h", 1.0 / 3600}}, 6)},
      {Id::Force, plain({{"N"}, {"kN", 1e3}, {"MN", 1e6}})},
      {Id::LinearForce, plain({{"N/m"}, {"kN/m", 1e3}})},
      {Id::LinearMoment, plain({{"N·m/m"}, {"kN·m/m", 1e3}})},
      {Id::Torque, plain({{"N·m"}, {"kN·m", 1e3}})},
      {Id::WarpingMoment, plain({{"N·m²"}, {"kN·m²", 1e3}})},
      {Id::Mass, aligned({{"kg"}, {"g", 1e-3}, {"t", 1e3}})},
      {Id::MolecularWeight, plain({{"kg/mol"}, {"g/mol", 1e-3}}, 6)},
      {Id::LuminousFlux, plain({{"lm"}})},
      {Id::Illuminance, plain({{"lx"}})},
      {Id::ElectricVoltage, plain({{"V"}, {"mV", 1e-3}, {"kV", 1e3}})},
      {Id::ElectricResistance, plain({{"Ω"}, {"kΩ", 1e3}, {"MΩ", 1e6}})},
      {Id::ElectricCurrent, plain({{"A"}, {"mA", 1e-3}, {"kA", 1e3}})},
      {Id::Curvature, plain({{"1/m"}}, 6)},
      {Id::Frequency, plain({{"Hz"}, {"kHz", 1e3}, {"MHz", 1e6}})},
      {Id::RotationalFrequency, plain({{"1/s"}, {"1/min", 1.0 / 60}})},
      {Id::AbsorbedDose, plain({{"Gy"}})},
  };
  return displays;
}

}  // namespace

const StandardDisplay& standardDisplay(QuantityId id) {
  static const StandardDisplay unknown = aligned({{""}});
  const auto found = standardDisplays().find(id);
  return found == standardDisplays().end() ? unknown : found->second;
}

}  // namespace qor::unit
