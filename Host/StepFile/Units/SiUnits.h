#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "Fc/Data.h"
#include "Fc/Resource/Measure/FcDerivedUnit.h"
#include "Fc/Resource/Measure/FcNamedUnit.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Measure/FcUnit.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::step {

/// The SI units that stand for the units of a file once its numbers are converted: metre for inch,
/// watt per metre and kelvin for kilowatt per inch and kelvin.
class SiUnits {
 public:
  explicit SiUnits(UnitSizes& sizes) : m_sizes(sizes) {}

  /// An SI unit of the file, to be taken instead of a new one.
  void offer(const std::shared_ptr<fc::resource::measure::FcSIUnit>& unit);
  /// The unit itself where it is SI already. NotSet where there is none, or the size of the unit is
  /// unknown.
  fc::resource::measure::FcUnit of(const fc::resource::measure::FcUnit& unit);
  /// Lists those that were made.
  void listIn(fc::Data& data);

 private:
  using Named = std::shared_ptr<fc::resource::measure::FcNamedUnit>;
  using Derived = std::shared_ptr<fc::resource::measure::FcDerivedUnit>;

  Named named(const Named& unit);
  Derived derived(const Derived& unit);
  Named standard(fc::resource::measure::FcUnitEnum type);
  template <class T>
  std::shared_ptr<T> make();

  UnitSizes& m_sizes;
  std::unordered_map<int, Named> m_standard;  // by FcUnitEnum
  std::unordered_map<const fc::FcBase*, Derived> m_derived;
  std::vector<std::shared_ptr<fc::FcBase>> m_made;
};

}  // namespace qor::host::step
