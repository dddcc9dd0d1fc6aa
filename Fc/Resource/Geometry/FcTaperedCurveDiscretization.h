#pragma once

#include <vector>

#include "Qor/Math/CurveDiscretization.h"

namespace qor::fc::resource::geometry {

/// Cuts the circles of a second profile like those of a first one, so that both come out with
/// equally many points and can be joined point by point.
///
/// While `collecting` it notes the radius of each circle that it is asked for; afterwards it
/// answers for those radii, in the same order, whatever radius it is asked for. It belongs to one
/// thread.
class QOR_API FcTaperedCurveDiscretization : public math::CurveDiscretization {
 public:
  explicit FcTaperedCurveDiscretization(const math::CurveDiscretization& numbers)
      : CurveDiscretization(numbers) {}

  /// An assert, and the answer for `radius` itself, when it is asked for more circles than were
  /// noted.
  std::size_t numberOfCircleSegments(double radius) const override;
  std::unique_ptr<CurveDiscretization> copy() const override;

  bool collecting = true;
  mutable std::vector<double> radii;
  mutable std::size_t nextRadius = 0;
};

}  // namespace qor::fc::resource::geometry
