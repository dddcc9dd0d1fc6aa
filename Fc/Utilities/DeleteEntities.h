#pragma once

#include <set>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class Data;
class FcBase;

namespace utilities {

/// Takes the entities out of the model with all their relations, and rebuilds the inverse
/// attributes of the rest, so that these say exactly what the forward attributes say.
///
/// What the project doesn't reach, by forward or inverse attributes, leaves the model too, whether
/// or not that comes of the deletion: a text style that nothing uses goes with any wall. The rest
/// keeps its order.
/// A relationship stays when its members go: with an empty list, or a null reference. Null pointers
/// in the set are passed over; an entity that isn't listed loses its relations all the same.
/// Without a project nothing could be reached: an assert, and no change. Throws
/// `std::bad_weak_ptr`, before any change, for an entity that no `std::shared_ptr` holds.
///
/// Visits the whole model, however few entities are deleted.
QOR_API void deleteEntities(Data& data, const std::set<FcBase*>& entities);

}  // namespace utilities
}  // namespace qor::fc
