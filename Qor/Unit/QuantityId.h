#pragma once

namespace qor::unit {

/// The quantities that the library knows, by numbers that stay what they are. A host may register
/// further ones under numbers from 1000.
enum class QuantityId : int {
  Time = 0,
  Length = 1,
  Area = 2,
  Volume = 3,
  LinearVelocity = 4,
  PlaneAngle = 5,
  Count = 6,
  Ratio = 8,
  Temperature = 9,
  Pressure = 10,
  Power = 11,
  ThermalTransmittance = 12,
  VolumetricFlowRate = 16,
  ThermalConductivity = 17,
  MassDensity = 21,
  SpecificHeatCapacity = 23,
  MassFlowRate = 31,
  Force = 34,
  LinearForce = 35,
  LinearMoment = 36,
  Torque = 37,
  WarpingMoment = 38,
  Mass = 39,
  MolecularWeight = 40,
  LuminousFlux = 41,
  Illuminance = 43,
  ElectricVoltage = 44,
  ElectricResistance = 45,
  ElectricCurrent = 46,
  Curvature = 47,
  Frequency = 48,
  RotationalFrequency = 49,
  AbsorbedDose = 51
};

}  // namespace qor::unit
