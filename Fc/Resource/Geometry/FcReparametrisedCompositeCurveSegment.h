#pragma once

#include "Fc/Resource/Geometry/FcReparametrisedCompositeCurveSegmentAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcReparametrisedCompositeCurveSegment, Resource.Geometry: a segment with a parameter of its
/// own.
class QOR_API FcReparametrisedCompositeCurveSegment
    : public FcReparametrisedCompositeCurveSegmentAttributes {
 public:
  /// One length, `ParamLength`.
  std::vector<std::pair<double, FcCurve::ParameterType>> parametricSegments() const override;
};

}  // namespace qor::fc::resource::geometry
