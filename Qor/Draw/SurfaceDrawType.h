#pragma once

#include <cstdint>

namespace qor::generate::draw {

/// What a target shows of a surface.
enum class SurfaceDrawType : std::uint8_t {
  Edges = 0,   ///< the edges of its faces alone
  Surface = 1  ///< the faces, as the material has them
};

}  // namespace qor::generate::draw
