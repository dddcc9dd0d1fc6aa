#pragma once

#include <optional>
#include <vector>

#include "Qor/Draw/Profile2D.h"

namespace qor::fc {
class FcParams;
}
namespace qor::fc::resource::profile {
class FcProfileDef;
}

namespace qor::fc::resource::geometricmodel {

/// The areas at both ends of a tapered body; area `i` of one belongs to area `i` of the other.
struct TaperedProfiles {
  std::vector<generate::draw::Profile2D> start{};
  std::vector<generate::draw::Profile2D> end{};
};

/// Both profiles with counter-clockwise outer contours, arcs of the second cut into as many
/// segments as those of the first. Empty when one has no areas or they have different numbers of
/// them.
std::optional<TaperedProfiles> taperedProfiles(const profile::FcProfileDef& start,
                                               const profile::FcProfileDef& end,
                                               const FcParams& params);

}  // namespace qor::fc::resource::geometricmodel
