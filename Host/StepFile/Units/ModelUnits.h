#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Fc/Resource/Measure/FcUnitAssignment.h"
#include "Host/StepFile/Units/FileUnit.h"
#include "Host/StepFile/Units/Measures.h"
#include "Host/StepFile/Units/SiUnits.h"
#include "Host/StepFile/Units/UnitReport.h"
#include "Host/StepFile/Units/UnitSizes.h"

namespace qor::host::step {

/// The units of a whole file: what its unit assignments say, as one conversion for each measure.
///
/// A kind of unit that no assignment lists is taken as SI.
class ModelUnits {
 public:
  ModelUnits(UnitSizes& sizes, SiUnits& siUnits, UnitReport report);

  /// Takes an assignment in, that of the project first: where two say different things, the first
  /// one holds, and the other is reported.
  void add(std::uint64_t number,
           const std::shared_ptr<fc::resource::measure::FcUnitAssignment>& assignment);
  /// Lets the assignments say SI, where the numbers are.
  void sayTheyAreSi();

  /// Null where numbers stay as they are.
  const UnitConversion* find(MeasureId id) const { return m_found[id]; }
  /// True when no number needs a conversion.
  bool isSi() const { return m_isSi; }
  /// The conversion of a measure, the identity too.
  UnitConversion of(MeasureId id) const { return m_found[id] ? *m_found[id] : UnitConversion(); }
  std::vector<FileUnit> release() { return std::move(m_units); }

 private:
  using Assignment = std::shared_ptr<fc::resource::measure::FcUnitAssignment>;

  std::optional<UnitConversion> take(const fc::resource::measure::FcUnitAssignment& assignment,
                                     const fc::resource::measure::FcUnit& unit);
  void index();

  UnitSizes& m_sizes;
  SiUnits& m_siUnits;
  UnitReport m_report;
  std::vector<Assignment> m_assignments;
  std::vector<FileUnit> m_units;
  /// By the kind of unit, "LENGTHUNIT".
  std::unordered_map<std::string_view, UnitConversion> m_byKind;
  std::vector<UnitConversion> m_conversions;
  /// By `MeasureId`; `measure::byType` too has a place.
  std::vector<const UnitConversion*> m_found;
  bool m_isSi = true;
};

/// "LENGTHUNIT", "THERMALTRANSMITTANCEUNIT"; empty for a kind of the user's own and for money.
std::string_view kindOf(const fc::FcBase* unit);

/// Those of the measures that have units of this kind; empty when none has.
std::optional<Dimensions> dimensionsOfKind(std::string_view kind);

}  // namespace qor::host::step
