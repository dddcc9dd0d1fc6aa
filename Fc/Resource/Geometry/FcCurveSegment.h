#pragma once

#include "Fc/Resource/Geometry/FcCurveSegmentAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcCurveSegment, Resource.Geometry: a part of a curve, put into place, as alignments have it.
/// It has no points of its own.
class QOR_API FcCurveSegment : public FcCurveSegmentAttributes {
 public:
  const FcCurve* parentCurve() const override { return ParentCurve().get(); }
};

}  // namespace qor::fc::resource::geometry
