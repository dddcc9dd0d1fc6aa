#include "Qor/Draw/Representation.h"

#include <cstddef>

#include "Qor/Draw/EnumeratorText.h"
#include "Qor/String/IgnoreCase.h"

namespace qor::generate::draw {

namespace {

constexpr const char* identifiers[] = {"CoG",           "Box",       "Annotation", "Axis",
                                       "FootPrint",     "Profile",   "Surface",    "Body",
                                       "Body-FallBack", "Clearance", "Lighting",   "Reference"};
constexpr const char* types[] = {"",
                                 "Point",
                                 "PointCloud",
                                 "Curve",
                                 "Curve2D",
                                 "Curve3D",
                                 "Surface",
                                 "Surface2D",
                                 "Surface3D",
                                 "FillArea",
                                 "Text",
                                 "AdvancedSurface",
                                 "GeometricSet",
                                 "GeometricCurveSet",
                                 "Annotation2D",
                                 "SurfaceModel",
                                 "Tessellation",
                                 "SolidModel",
                                 "SweptSolid",
                                 "AdvancedSweptSolid",
                                 "Brep",
                                 "AdvancedBrep",
                                 "CSG",
                                 "Clipping",
                                 "BoundingBox",
                                 "SectionedSpine",
                                 "LightSource",
                                 "MappedRepresentation"};

template <class Enumerator, std::size_t Size>
std::optional<Enumerator> find(const char* const (&texts)[Size], std::string_view text) {
  if (text.empty()) return {};
  for (std::size_t i = 0; i < Size; ++i)
    if (equalsIgnoreCase(texts[i], text)) return static_cast<Enumerator>(i);
  return {};
}

}  // namespace

Representation Representation::fromTexts(std::string_view identifier, std::string_view type) {
  return {find<RepresentationIdentifier>(identifiers, identifier),
          find<RepresentationType>(types, type)};
}

const char* Representation::sIdentifier(RepresentationIdentifier identifier) {
  return textOf(identifiers, identifier);
}

const char* Representation::sType(RepresentationType type) { return textOf(types, type); }

}  // namespace qor::generate::draw
