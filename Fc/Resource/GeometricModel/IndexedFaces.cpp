#include "Fc/Resource/GeometricModel/IndexedFaces.h"

#include <algorithm>

#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFaceWithVoids.h"
#include "Fc/Resource/PresentationAppearance/FcTextureCoordinateIndicesWithVoids.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using measure::FcPositiveInteger;
using Face = PolygonalFaceSetOpenGL::Face;
using Positions = std::vector<FcPositiveInteger>;
using Indices = std::vector<std::uint32_t>;

namespace {

/// False when a corner lies beyond the coordinates.
bool mapRing(const Positions& ring, const CoordinatePositions& positions, Indices& out) {
  bool allThere = true;
  out.reserve(ring.size());
  for (const FcPositiveInteger& position : ring) {
    const std::uint32_t index = positions(position);
    if (index == CoordinatePositions::outsidePnIndex) {
      report("Index pn index mismatch");
      continue;
    }
    allThere = allThere && index != CoordinatePositions::outsideCoordinates;
    out.push_back(index);
  }
  return allThere;
}

/// False at the first corner that can't be found.
bool mapRingOfColour(const Positions& ring, const CoordinatePositions& positions, Indices& out) {
  out.reserve(ring.size());
  for (const FcPositiveInteger& position : ring) {
    const std::uint32_t index = positions(position);
    if (index >= CoordinatePositions::outsideCoordinates) {
      report(index == CoordinatePositions::outsidePnIndex ? "Index PnIndex mismatch"
                                                          : "Invalid coordinate index");
      return false;
    }
    out.push_back(index);
  }
  return true;
}

Positions positionsOf(const Indices& ring) {
  Positions result;
  result.reserve(ring.size());
  for (const std::uint32_t index : ring) result.emplace_back(std::int64_t{index} + 1);
  return result;
}

Positions reversed(const Positions& ring) { return {ring.rbegin(), ring.rend()}; }

std::vector<Positions> reversed(std::vector<Positions> rings) {
  for (Positions& ring : rings) std::reverse(ring.begin(), ring.end());
  return rings;
}

}  // namespace

std::optional<Face> indexedFace(const FcIndexedPolygonalFace* face,
                                const CoordinatePositions& positions) {
  if (!face || face->CoordIndex().empty()) {
    report(!face ? "There is a Face which is not set."
                 : "There is a Face which is set but contains no points.");
    return std::nullopt;
  }
  Face result;
  bool allThere = mapRing(face->CoordIndex(), positions, result.outer);
  if (const auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(face)) {
    result.holes.reserve(withVoids->InnerCoordIndices().size());
    for (const Positions& hole : withVoids->InnerCoordIndices())
      allThere = mapRing(hole, positions, result.holes.emplace_back()) && allThere;
  }
  if (allThere) return result;
  report("Illegal index in face");
  return std::nullopt;
}

bool isPolygon(const FcIndexedPolygonalFace* face) {
  if (face && face->CoordIndex().size() >= 3) return true;
  report(face ? "Face with less than three points" : "Face was nullptr");
  return false;
}

std::optional<Face> indexedFaceOfColour(const FcIndexedPolygonalFace& face,
                                        const CoordinatePositions& positions) {
  Face result;
  if (!mapRingOfColour(face.CoordIndex(), positions, result.outer)) return std::nullopt;
  const auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(&face);
  if (!withVoids) return result;
  for (const Positions& hole : withVoids->InnerCoordIndices()) {
    Indices indices;
    if (hole.size() < 3)
      report("There is an Void in a FaceWithVoids which contains less than three points.");
    else if (mapRingOfColour(hole, positions, indices))
      result.holes.push_back(std::move(indices));
  }
  return result;
}

std::shared_ptr<FcIndexedPolygonalFace> modelFace(const Face& face) {
  if (face.holes.empty()) {
    auto result = makeEntity<FcIndexedPolygonalFace>();
    result->setCoordIndex(positionsOf(face.outer));
    return result;
  }
  auto result = makeEntity<FcIndexedPolygonalFaceWithVoids>();
  result->setCoordIndex(positionsOf(face.outer));
  std::vector<Positions> holes;
  holes.reserve(face.holes.size());
  for (const Indices& hole : face.holes) holes.push_back(positionsOf(hole));
  result->setInnerCoordIndices(std::move(holes));
  return result;
}

void turnRound(FcIndexedPolygonalFace& face) {
  face.setCoordIndex(reversed(face.CoordIndex()));
  if (auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(static_cast<FcBase*>(&face)))
    withVoids->setInnerCoordIndices(reversed(withVoids->InnerCoordIndices()));

  const auto texture = face.HasTexCoords().lock();
  if (!texture) return;
  texture->setTexCoordIndex(reversed(texture->TexCoordIndex()));
  if (const auto withVoids =
          fcCast<presentationappearance::FcTextureCoordinateIndicesWithVoids>(texture))
    withVoids->setInnerTexCoordIndices(reversed(withVoids->InnerTexCoordIndices()));
}

}  // namespace qor::fc::resource::geometricmodel
