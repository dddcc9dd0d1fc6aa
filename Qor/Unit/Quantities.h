#pragma once

#include "Qor/Unit/Quantity.h"

namespace qor::unit {

// Exponents: length, mass, time, electric current, temperature, amount of substance, luminous
// intensity.
using Time = Quantity<QuantityId::Time, 0, 0, 1, 0, 0, 0, 0>;
using Length = Quantity<QuantityId::Length, 1, 0, 0, 0, 0, 0, 0>;
using Area = Quantity<QuantityId::Area, 2, 0, 0, 0, 0, 0, 0>;
using Volume = Quantity<QuantityId::Volume, 3, 0, 0, 0, 0, 0, 0>;
using LinearVelocity = Quantity<QuantityId::LinearVelocity, 1, 0, -1, 0, 0, 0, 0>;
using PlaneAngle = Quantity<QuantityId::PlaneAngle, 0, 0, 0, 0, 0, 0, 0>;
using Count = Quantity<QuantityId::Count, 0, 0, 0, 0, 0, 0, 0>;
using Ratio = Quantity<QuantityId::Ratio, 0, 0, 0, 0, 0, 0, 0>;
using Temperature = Quantity<QuantityId::Temperature, 0, 0, 0, 0, 1, 0, 0>;
using Pressure = Quantity<QuantityId::Pressure, -1, 1, -2, 0, 0, 0, 0>;
using Power = Quantity<QuantityId::Power, 2, 1, -3, 0, 0, 0, 0>;
using ThermalTransmittance = Quantity<QuantityId::ThermalTransmittance, 0, 1, -3, 0, -1, 0, 0>;
using VolumetricFlowRate = Quantity<QuantityId::VolumetricFlowRate, 3, 0, -1, 0, 0, 0, 0>;
using ThermalConductivity = Quantity<QuantityId::ThermalConductivity, 1, 1, -3, 0, -1, 0, 0>;
using MassDensity = Quantity<QuantityId::MassDensity, -3, 1, 0, 0, 0, 0, 0>;
using SpecificHeatCapacity = Quantity<QuantityId::SpecificHeatCapacity, 2, 0, -2, 0, -1, 0, 0>;
using MassFlowRate = Quantity<QuantityId::MassFlowRate, 0, 1, -1, 0, 0, 0, 0>;
using Force = Quantity<QuantityId::Force, 1, 1, -2, 0, 0, 0, 0>;
using LinearForce = Quantity<QuantityId::LinearForce, 0, 1, -2, 0, 0, 0, 0>;
using LinearMoment = Quantity<QuantityId::LinearMoment, 1, 1, -2, 0, 0, 0, 0>;
using Torque = Quantity<QuantityId::Torque, 2, 1, -2, 0, 0, 0, 0>;
using WarpingMoment = Quantity<QuantityId::WarpingMoment, 3, 1, -3, 0, 0, 0, 0>;
using Mass = Quantity<QuantityId::Mass, 0, 1, 0, 0, 0, 0, 0>;
using MolecularWeight = Quantity<QuantityId::MolecularWeight, 0, 1, 0, 0, 0, -1, 0>;
using LuminousFlux = Quantity<QuantityId::LuminousFlux, 0, 0, 0, 0, 0, 0, 1>;
using Illuminance = Quantity<QuantityId::Illuminance, -2, 0, 0, 0, 0, 0, 1>;
using ElectricVoltage = Quantity<QuantityId::ElectricVoltage, 2, 1, -3, -1, 0, 0, 0>;
using ElectricResistance = Quantity<QuantityId::ElectricResistance, 2, 1, -3, -2, 0, 0, 0>;
using ElectricCurrent = Quantity<QuantityId::ElectricCurrent, 0, 0, 0, 1, 0, 0, 0>;
using Curvature = Quantity<QuantityId::Curvature, -1, 0, 0, 0, 0, 0, 0>;
using Frequency = Quantity<QuantityId::Frequency, 0, 0, -1, 0, 0, 0, 0>;
using RotationalFrequency = Quantity<QuantityId::RotationalFrequency, 0, 0, -1, 0, 0, 0, 0>;
using AbsorbedDose = Quantity<QuantityId::AbsorbedDose, 2, 0, -2, 0, 0, 0, 0>;

}  // namespace qor::unit
