#pragma once

#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometricconstraint {

class FcObjectPlacement;

/// The frame of a placement times those of all that it stands on, up to the top of the chain of
/// `PlacementRelTo`, with no recursion and no cache. A chain that turns back on itself reports an
/// assert that names the placement at which it closes, and gives the frame up to there.
QOR_API math::Matrix frameInProject(const FcObjectPlacement& placement);

}  // namespace qor::fc::resource::geometricconstraint
