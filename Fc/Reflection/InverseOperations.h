#pragma once

#include "Fc/Reflection/TypeOperations.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// The operations of inverse attributes, which reflection reads and never writes.
extern QOR_API const TypeOperations inverseSetOperations;
extern QOR_API const TypeOperations inverseRefOperations;

}  // namespace qor::fc
