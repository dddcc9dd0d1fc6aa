#include "Host/StepFile/Units/UnitConverter.h"

#include <algorithm>
#include <utility>

#include "Fc/Core/Kernel/FcProject.h"
#include "Host/StepFile/Units/CurveParameters.h"
#include "Host/StepFile/Units/ParameterScale.h"
#include "Host/StepFile/Units/SurfaceCurves.h"

namespace qor::host::step {

using fc::core::kernel::FcProject;
using fc::resource::geometry::FcPcurve;
using fc::resource::measure::FcSIUnit;
using fc::resource::measure::FcUnitAssignment;

UnitConverter::UnitConverter(UnitReport report)
    : m_report(std::move(report)),
      m_sizes(m_report),
      m_siUnits(m_sizes),
      m_model(m_sizes, m_siUnits, m_report),
      m_own(m_model, m_sizes, m_siUnits, m_report),
      m_maps(m_model, m_sizes, m_siUnits) {}

void UnitConverter::add(std::uint64_t number, const std::shared_ptr<fc::FcBase>& entity) {
  if (auto unit = fc::fcCast<FcSIUnit>(entity)) m_siUnits.offer(unit);
  if (auto assignment = fc::fcCast<FcUnitAssignment>(entity))
    m_assignments.push_back({number, std::move(assignment)});
  if (auto project = fc::fcCast<FcProject>(entity); project && !m_ofProject)
    m_ofProject = project->UnitsInContext();
}

void UnitConverter::start() {
  std::stable_partition(m_assignments.begin(), m_assignments.end(),
                        [this](const Numbered& each) { return each.assignment == m_ofProject; });
  for (const Numbered& each : m_assignments) m_model.add(each.number, each.assignment);
}

void UnitConverter::convert(UnitRole role, const std::shared_ptr<fc::FcBase>& entity) {
  switch (role) {
    case UnitRole::ownUnit:
      m_own.convert(*entity);
      break;
    case UnitRole::sharedUnit:
      m_shared.push_back(entity);
      break;
    case UnitRole::parameter:
      m_parameters.push_back(entity);
      break;
    case UnitRole::none:
    case UnitRole::unit:
      break;
  }
}

void UnitConverter::convertParameters() {
  const UnitConversion length = m_model.of(measure::length);
  const UnitConversion angle = m_model.of(measure::planeAngle);
  CurveParameters({length, angle}, m_report).convert(m_parameters);
  SurfaceCurves curves(length, angle, m_report);
  for (const auto& entity : m_parameters)
    if (const auto* curve = fc::fcCast<FcPcurve>(entity.get())) curves.convert(*curve);
}

void UnitConverter::finish(fc::Data& data) {
  for (const auto& entity : m_shared)
    if (!m_maps.convert(*entity)) m_own.convert(*entity);
  m_maps.finish();
  m_own.finish();
  if (!m_model.isSi()) convertParameters();
  m_model.sayTheyAreSi();
  m_siUnits.listIn(data);
}

}  // namespace qor::host::step
