#pragma once

#include <cstdint>

#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// What geometric representation contexts of a model are for, and the texts that they are stored
/// under. The texts live as long as the program; a number that is no enumerator has an empty one.
struct QOR_API IfcGeometricRepresentationContextEnum {
  enum class ContextType : std::uint8_t { Model = 0, Plan = 1, NotDefined = 2 };

  /// What a sub-context of the model holds of an object.
  enum class ModelContextIdentifier : std::uint8_t {
    Box = 0,
    Axis = 1,
    FootPrint = 2,
    Surface = 3,
    Body = 4,
    BodyFallBack = 5,
    CoG = 6,
    Annotation = 7,
    Profile = 8,
    Reference = 9,
    Clearance = 10,
    Lighting = 11
  };

  /// "Model", "Plan", "NotDefined".
  static const char* sContextType(ContextType type);
  /// "Body", "FootPrint", "Body-FallBack" ...
  static const char* sContextIdentifier(ModelContextIdentifier identifier);
};

}  // namespace qor::generate::draw
