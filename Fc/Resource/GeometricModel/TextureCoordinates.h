#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Fc/Resource/GeometricModel/CoordinatePositions.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::presentationappearance {
class FcIndexedPolygonalTextureMap;
class FcIndexedTriangleTextureMap;
class FcTextureVertexList;
}  // namespace qor::fc::resource::presentationappearance

namespace qor::fc::resource::geometricmodel {

class FcPolygonalFaceSet;

/// A model names a place in an image for each corner of a face, a draw target one for each point.
/// These lay the corners over the points: of several corners at one point the last counts, a point
/// without one has (0, 0). Corners whose position or place isn't there are left out, with one
/// assert for each map. Linear in the corners.

std::vector<generate::draw::TextureCoordinate> textureCoordinatesByVertex(
    const presentationappearance::FcIndexedPolygonalTextureMap& map,
    const CoordinatePositions& positions, std::size_t vertexCount);

/// Triangles without places of their own take those with the positions of their corners.
std::vector<generate::draw::TextureCoordinate> textureCoordinatesByVertex(
    const presentationappearance::FcIndexedTriangleTextureMap& map,
    const std::vector<std::array<measure::FcPositiveInteger, 3>>& triangles,
    const CoordinatePositions& positions, std::size_t vertexCount);

/// The list with places of a map.
std::shared_ptr<presentationappearance::FcTextureVertexList> textureVertexList(
    const std::vector<generate::draw::TextureCoordinate>& coordinates);

/// A map of `faceSet`, whose faces take the places with the positions of their corners.
std::shared_ptr<presentationappearance::FcIndexedPolygonalTextureMap> polygonalTextureMap(
    const std::shared_ptr<FcPolygonalFaceSet>& faceSet,
    const std::vector<generate::draw::TextureCoordinate>& coordinates);

}  // namespace qor::fc::resource::geometricmodel
