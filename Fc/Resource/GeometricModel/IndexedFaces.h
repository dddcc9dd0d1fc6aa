#pragma once

#include <memory>
#include <optional>

#include "Fc/Resource/GeometricModel/CoordinatePositions.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

/// Single faces on their way between the lists of positions of a model and the indices of what is
/// drawn.
namespace qor::fc::resource::geometricmodel {

class FcIndexedPolygonalFace;

/// The face over the coordinates of its set. Empty, with an assert, for no face, one without
/// corners, and one with a corner beyond the coordinates; a corner beyond `PnIndex` is reported and
/// left out.
std::optional<generate::draw::PolygonalFaceSetOpenGL::Face> indexedFace(
    const FcIndexedPolygonalFace* face, const CoordinatePositions& positions);

/// There is a face with three corners at least; otherwise an assert.
bool isPolygon(const FcIndexedPolygonalFace* face);
/// The face of a set that is split by colours. Empty, with an assert, when a corner can't be found;
/// a hole with a corner that can't, or with less than three, is left out.
std::optional<generate::draw::PolygonalFaceSetOpenGL::Face> indexedFaceOfColour(
    const FcIndexedPolygonalFace& face, const CoordinatePositions& positions);

/// A new face, in no set, with voids where `face` has holes.
std::shared_ptr<FcIndexedPolygonalFace> modelFace(
    const generate::draw::PolygonalFaceSetOpenGL::Face& face);

/// Walks each ring of the face the other way, and with it the corners of its texture.
void turnRound(FcIndexedPolygonalFace& face);

/// Calls back with each index of the face, which may be written to.
template <class Callback>
void forEachIndex(generate::draw::PolygonalFaceSetOpenGL::Face& face, Callback&& callback) {
  for (std::uint32_t& index : face.outer) callback(index);
  for (auto& hole : face.holes)
    for (std::uint32_t& index : hole) callback(index);
}

}  // namespace qor::fc::resource::geometricmodel
