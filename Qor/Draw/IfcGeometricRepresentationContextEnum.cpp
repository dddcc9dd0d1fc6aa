#include "Qor/Draw/IfcGeometricRepresentationContextEnum.h"

#include <cstddef>
#include <iterator>

namespace qor::generate::draw {

namespace {

template <class Enumerator, std::size_t Size>
const char* textOf(const char* const (&texts)[Size], Enumerator value) {
  const auto position = static_cast<std::size_t>(value);
  return position < Size ? texts[position] : "";
}

constexpr const char* contextTypes[] = {"Model", "Plan", "NotDefined"};
constexpr const char* contextIdentifiers[] = {"Box",     "Axis",          "FootPrint", "Surface",
                                              "Body",    "Body-FallBack", "CoG",       "Annotation",
                                              "Profile", "Reference",     "Clearance", "Lighting"};

}  // namespace

const char* IfcGeometricRepresentationContextEnum::sContextType(ContextType type) {
  return textOf(contextTypes, type);
}

const char* IfcGeometricRepresentationContextEnum::sContextIdentifier(
    ModelContextIdentifier identifier) {
  return textOf(contextIdentifiers, identifier);
}

}  // namespace qor::generate::draw
