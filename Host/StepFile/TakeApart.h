#pragma once

#include "Fc/Data.h"

namespace qor::host::step {

/// Takes all references out of the entities of a model that nobody needs any more, so that they go
/// one by one: entities that refer to each other in a circle would stay for ever, and a chain of a
/// million would go in a recursion as deep.
void takeApart(const fc::Data& data);

}  // namespace qor::host::step
