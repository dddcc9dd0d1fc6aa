#pragma once

#include <memory>

namespace qor::fc::resource::geometry {
class FcCurve;
class FcIndexedPolyCurve;
}  // namespace qor::fc::resource::geometry

namespace qor::fc::resource::profile {

/// The curve itself when it is one already, else what the curve makes of itself; null for no curve
/// and for one that can't.
std::shared_ptr<geometry::FcIndexedPolyCurve> curveAsIndexedPolyCurve(
    const std::shared_ptr<geometry::FcCurve>& curve);

}  // namespace qor::fc::resource::profile
