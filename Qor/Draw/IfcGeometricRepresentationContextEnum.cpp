#include "Qor/Draw/IfcGeometricRepresentationContextEnum.h"

#include "Qor/Draw/EnumeratorText.h"

namespace qor::generate::draw {

namespace {

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
