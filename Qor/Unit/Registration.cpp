#include "Qor/Unit/Registration.h"

#include <map>
#include <mutex>
#include <string>

#include "Qor/Assert/Exception.h"
#include "Qor/Unit/Quantities.h"

namespace qor::unit {

namespace {

class Register {
 public:
  static Register& instance() {
    static Register theRegister;
    return theRegister;
  }

  QuantityBase& add(std::unique_ptr<QuantityBase> quantity) {
    const std::lock_guard lock(m_mutex);
    const auto [entry, isNew] = m_quantities.try_emplace(quantity->id(), std::move(quantity));
    if (!isNew && entry->second->dimensions() != quantity->dimensions())
      throw exception("Quantity " + std::to_string(static_cast<int>(entry->first)) +
                      " is registered with other dimensions");
    return *entry->second;
  }
  QuantityBase* find(QuantityId id) {
    const std::lock_guard lock(m_mutex);
    const auto entry = m_quantities.find(id);
    return entry == m_quantities.end() ? nullptr : entry->second.get();
  }
  std::vector<QuantityBase*> all() {
    const std::lock_guard lock(m_mutex);
    std::vector<QuantityBase*> quantities;
    for (const auto& [id, quantity] : m_quantities) quantities.push_back(quantity.get());
    return quantities;
  }

 private:
  Register() {
    addAll<Time, Length, Area, Volume, LinearVelocity, PlaneAngle, Count, Ratio, Temperature,
           Pressure, Power, ThermalTransmittance, VolumetricFlowRate, ThermalConductivity,
           MassDensity, SpecificHeatCapacity, MassFlowRate, Force, LinearForce, LinearMoment,
           Torque, WarpingMoment, Mass, MolecularWeight, LuminousFlux, Illuminance, ElectricVoltage,
           ElectricResistance, ElectricCurrent, Curvature, Frequency, RotationalFrequency,
           AbsorbedDose>();
  }

  template <class... Qs>
  void addAll() {
    (add(std::make_unique<Qs>()), ...);
  }

  std::mutex m_mutex;
  std::map<QuantityId, std::unique_ptr<QuantityBase>> m_quantities;
};

}  // namespace

QuantityBase& Registration::registerQuantity(std::unique_ptr<QuantityBase> quantity) {
  return Register::instance().add(std::move(quantity));
}

QuantityBase* Registration::find(QuantityId id) { return Register::instance().find(id); }

std::vector<QuantityBase*> Registration::all() { return Register::instance().all(); }

}  // namespace qor::unit
