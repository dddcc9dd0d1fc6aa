#pragma once

#include <source_location>
#include <string>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcBase;

/// The class of an entity as messages name it: "class qor::fc::shared::buildingelements::FcWall".
QOR_API std::string runTimeTypeName(const FcBase& entity);

/// Reports that the class of `entity` has no form of its own of an operation: `message` followed by
/// the class. For base forms of virtual operations.
QOR_API void assertNotImplemented(
    const char* message, const FcBase& entity,
    const std::source_location& where = std::source_location::current());

}  // namespace qor::fc
