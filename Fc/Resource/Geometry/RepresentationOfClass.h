#pragma once

#include <cstdint>

#include "Qor/Draw/Representation.h"

namespace qor::fc::resource::geometry {

/// What a representation is for and made of whose items are of the class with this id; empty for a
/// class that says nothing.
generate::draw::Representation representationOfClass(std::uint32_t classId);

}  // namespace qor::fc::resource::geometry
