#pragma once

#include <memory>
#include <vector>

#include "Fc/Resource/Geometry/FcCurve.h"
#include "Fc/Resource/Geometry/FcCurveMeasureSelect.h"
#include "Host/StepFile/Units/ParameterScale.h"
#include "Host/StepFile/Units/UnitReport.h"

namespace qor::host::step {

/// Converts the parameters that entities have on curves and surfaces.
class CurveParameters {
 public:
  CurveParameters(ParameterScale scale, UnitReport report);

  /// All entities of `UnitRole::parameter`, whose lengths are converted already, in one call:
  /// composite curves need the trims of their segments as the file has them.
  void convert(const std::vector<std::shared_ptr<fc::FcBase>>& entities) const;

 private:
  using Curve = fc::resource::geometry::FcCurve;
  using Select = fc::resource::geometry::FcCurveMeasureSelect;

  template <class T>
  bool convertAs(fc::FcBase& entity) const;
  template <class T>
  void convertOne(T& entity) const;

  /// The parameter in SI; as it is, after a report, where that can't be found out.
  double converted(double parameter, const std::shared_ptr<Curve>& curve,
                   const fc::FcBase& owner) const;
  Select converted(const Select& select, const std::shared_ptr<Curve>& curve,
                   const fc::FcBase& owner) const;

  ParameterScale m_scale;
  UnitReport m_report;
};

}  // namespace qor::host::step
