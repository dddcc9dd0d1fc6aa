#pragma once

#include <unordered_set>

#include "Fc/Resource/Geometry/FcPcurve.h"
#include "Host/StepFile/Units/ParameterScale.h"
#include "Host/StepFile/Units/UnitConversion.h"
#include "Host/StepFile/Units/UnitReport.h"

namespace qor::host::step {

/// Converts curves that run in the parameters of a surface. What the schema calls their coordinates
/// are angles on a cylinder and plain numbers on a spline: they were taken as lengths, and are set
/// right here.
class SurfaceCurves {
 public:
  SurfaceCurves(const UnitConversion& length, const UnitConversion& angle, UnitReport report)
      : m_length(length), m_scale(length, angle), m_report(std::move(report)) {}

  /// All that the curve reaches must be read, and is converted once, however many curves share it.
  void convert(const fc::resource::geometry::FcPcurve& curve);

 private:
  using Conversions = std::pair<UnitConversion, UnitConversion>;

  void convertOne(fc::FcBase& entity, const Conversions& conversions, const fc::FcBase& owner);

  UnitConversion m_length;
  ParameterScale m_scale;
  UnitReport m_report;
  std::unordered_set<const fc::FcBase*> m_done;
};

}  // namespace qor::host::step
