#pragma once

#include <vector>

#include "Fc/Resource/Topology/FcLoopAttributes.h"
#include "Qor/Math/Point.h"

namespace qor::fc::resource::topology {

/// IfcLoop, Resource.Topology: the closed way round a face.
class QOR_API FcLoop : public FcLoopAttributes {
 public:
  /// The corners of a loop in the XY plane, without a repeated end. False, and no change, for a
  /// loop that isn't planar by its kind, as in the base form, and for one without points.
  virtual bool boPoints2dGet(std::vector<math::Point2d>& points) const;
  /// The corners, without a repeated end; none in the base form.
  virtual std::vector<math::Point3d> points3dGet(const FcParams& params) const;
};

}  // namespace qor::fc::resource::topology
