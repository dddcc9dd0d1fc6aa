#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "Qor/Platform/Export.h"

namespace qor::generate::draw {

/// What a representation shows of an object.
enum class RepresentationIdentifier : std::uint8_t {
  CoG = 0,
  Box = 1,
  Annotation = 2,
  Axis = 3,
  FootPrint = 4,
  Profile = 5,
  Surface = 6,
  Body = 7,
  BodyFallBack = 8,
  Clearance = 9,
  Lighting = 10,
  Reference = 11
};

/// Of what kind of items a representation is made.
enum class RepresentationType : std::uint8_t {
  Undefined = 0,
  Point = 1,
  PointCloud = 2,
  Curve = 3,
  Curve2D = 4,
  Curve3D = 5,
  Surface = 6,
  Surface2D = 7,
  Surface3D = 8,
  FillArea = 9,
  Text = 10,
  AdvancedSurface = 11,
  GeometricSet = 12,
  GeometricCurveSet = 13,
  Annotation2D = 14,
  SurfaceModel = 15,
  Tessellation = 16,
  SolidModel = 17,
  SweptSolid = 18,
  AdvancedSweptSolid = 19,
  Brep = 20,
  AdvancedBrep = 21,
  Csg = 22,
  Clipping = 23,
  BoundingBox = 24,
  SectionedSpine = 25,
  LightSource = 26,
  MappedRepresentation = 27
};

/// What a representation is for, and what it is made of. The default says neither.
struct QOR_API Representation {
  std::optional<RepresentationIdentifier> identifier{};
  std::optional<RepresentationType> type{};

  bool empty() const { return !identifier && !type; }

  /// What the two texts of a model's representation mean ("Body", "SweptSolid"), without regard to
  /// case; a text that is none of the known ones says nothing.
  static Representation fromTexts(std::string_view identifier, std::string_view type);
  /// "Body", "FootPrint", "Body-FallBack" ... They live as long as the program.
  static const char* sIdentifier(RepresentationIdentifier identifier);
  /// "SweptSolid", "CSG" ...; "" for `Undefined`.
  static const char* sType(RepresentationType type);

  friend bool operator==(const Representation&, const Representation&) = default;
};

}  // namespace qor::generate::draw
