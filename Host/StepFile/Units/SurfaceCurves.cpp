#include "Host/StepFile/Units/SurfaceCurves.h"

#include <cmath>
#include <vector>

#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Resource/Geometry/FcCartesianPoint.h"
#include "Fc/Resource/Geometry/FcConic.h"
#include "Fc/Resource/Geometry/FcDirection.h"
#include "Fc/Resource/Geometry/FcVector.h"

namespace qor::host::step {

using namespace fc::resource::geometry;
using fc::resource::measure::FcLengthMeasure;

void SurfaceCurves::convert(const FcPcurve& curve) {
  const Conversions conversions = m_scale.of(curve.BasisSurface().get());
  if (!curve.ReferenceCurve() || conversions == Conversions(m_length, m_length)) return;
  std::vector<fc::FcBase*> waiting{curve.ReferenceCurve().get()};
  while (!waiting.empty()) {
    fc::FcBase& entity = *waiting.back();
    waiting.pop_back();
    if (!m_done.insert(&entity).second) continue;
    convertOne(entity, conversions, curve);
    entity.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
      attribute.type->forEachEntity(attribute.of(entity),
                                    [&](fc::FcBase& target) { waiting.push_back(&target); });
    });
  }
}

void SurfaceCurves::convertOne(fc::FcBase& entity, const Conversions& conversions,
                               const fc::FcBase& owner) {
  const auto& [u, v] = conversions;
  if (auto* point = fc::fcCast<FcCartesianPoint>(&entity)) {
    const auto& read = point->Coordinates();
    if (read.size() == 2)
      point->setCoordinates({FcLengthMeasure(u(m_length.inverse(read[0].value()))),
                             FcLengthMeasure(v(m_length.inverse(read[1].value())))});
    return;
  }
  auto* vector = fc::fcCast<FcVector>(&entity);
  if (vector && u == v) {
    vector->setMagnitude(FcLengthMeasure(u(m_length.inverse(vector->Magnitude().value()))));
  } else if (vector || fc::fcCast<FcConic>(&entity)) {
    m_report(owner, "ReferenceCurve",
             "ReferenceCurve has lines or arcs in the parameters of a surface, whose units aren't "
             "those of lengths: they are scaled as lengths.");
  }
}

}  // namespace qor::host::step
