#pragma once

#include <memory>

#include "Examples/ShapeBuilder.h"
#include "Fc/Core/ProductExtension/FcGeographicElementType.h"

namespace sample {

/// A meadow of 22 by 18 m as a closed body of triangles: level around the house, rising behind it
/// and falling before it.
Item createMeadow(ModelBuilder& model);

/// A tree of 4 m, which stands on the origin.
std::shared_ptr<FcGeographicElementType> createAppleTree(ModelBuilder& model, ShapeBuilder& shapes);

}  // namespace sample
