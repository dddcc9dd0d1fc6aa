#include "Fc/Resource/GeometricModel/TextureCoordinates.h"

#include <algorithm>
#include <utility>

#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFaceWithVoids.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedPolygonalTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedTriangleTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcTextureCoordinateIndicesWithVoids.h"
#include "Fc/Resource/PresentationAppearance/FcTextureVertexList.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::TextureCoordinate;
using measure::FcPositiveInteger;
using namespace presentationappearance;

namespace {

class CornersOverPoints {
 public:
  CornersOverPoints(const FcTextureVertexList& list, const CoordinatePositions& positions,
                    std::size_t vertexCount)
      : m_list(list), m_positions(positions), m_result(vertexCount) {}

  void lay(std::int64_t position, std::int64_t place) {
    const std::uint32_t vertex = m_positions(position);
    const std::uint64_t index = static_cast<std::uint64_t>(place) - 1;
    if (vertex >= m_result.size() || index >= m_list.TexCoordsList().size()) {
      m_allFound = false;
      return;
    }
    const auto& found = m_list.TexCoordsList()[index];
    m_result[vertex] = {static_cast<float>(found[0].value()), static_cast<float>(found[1].value())};
  }

  template <class Positions, class Places>
  void layRing(const Positions& positions, const Places& places) {
    const std::size_t count = std::min(positions.size(), places.size());
    m_allFound = m_allFound && positions.size() == places.size();
    for (std::size_t i = 0; i < count; ++i) lay(positions[i], places[i]);
  }

  std::vector<TextureCoordinate> take() {
    if (!m_allFound)
      report("A corner of a texture map has no place in its list or no point in its face set");
    return std::move(m_result);
  }

 private:
  const FcTextureVertexList& m_list;
  const CoordinatePositions& m_positions;
  std::vector<TextureCoordinate> m_result;
  bool m_allFound = true;
};

}  // namespace

std::vector<TextureCoordinate> textureCoordinatesByVertex(const FcIndexedPolygonalTextureMap& map,
                                                          const CoordinatePositions& positions,
                                                          std::size_t vertexCount) {
  CornersOverPoints corners(*map.TexCoords(), positions, vertexCount);
  for (const auto& indices : map.TexCoordIndices()) {
    const FcIndexedPolygonalFace* face = indices ? indices->TexCoordsOf().get() : nullptr;
    if (!face) continue;
    corners.layRing(face->CoordIndex(), indices->TexCoordIndex());
    const auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(face);
    const auto* places = fcCast<FcTextureCoordinateIndicesWithVoids>(indices.get());
    if (!withVoids || !places) continue;
    const std::size_t holes =
        std::min(withVoids->InnerCoordIndices().size(), places->InnerTexCoordIndices().size());
    for (std::size_t hole = 0; hole < holes; ++hole)
      corners.layRing(withVoids->InnerCoordIndices()[hole], places->InnerTexCoordIndices()[hole]);
  }
  return corners.take();
}

std::vector<TextureCoordinate> textureCoordinatesByVertex(
    const FcIndexedTriangleTextureMap& map,
    const std::vector<std::array<FcPositiveInteger, 3>>& triangles,
    const CoordinatePositions& positions, std::size_t vertexCount) {
  CornersOverPoints corners(*map.TexCoords(), positions, vertexCount);
  const auto& places = map.TexCoordIndex() ? *map.TexCoordIndex() : triangles;
  const std::size_t count = std::min(triangles.size(), places.size());
  for (std::size_t i = 0; i < count; ++i) corners.layRing(triangles[i], places[i]);
  return corners.take();
}

std::shared_ptr<FcTextureVertexList> textureVertexList(
    const std::vector<TextureCoordinate>& coordinates) {
  std::vector<std::array<measure::FcParameterValue, 2>> list;
  list.reserve(coordinates.size());
  for (const TextureCoordinate& coordinate : coordinates)
    list.push_back({double{coordinate[0]}, double{coordinate[1]}});
  auto result = makeEntity<FcTextureVertexList>();
  result->setTexCoordsList(std::move(list));
  return result;
}

std::shared_ptr<FcIndexedPolygonalTextureMap> polygonalTextureMap(
    const std::shared_ptr<FcPolygonalFaceSet>& faceSet,
    const std::vector<TextureCoordinate>& coordinates) {
  std::vector<std::shared_ptr<FcTextureCoordinateIndices>> allIndices;
  allIndices.reserve(faceSet->Faces().size());
  for (const auto& face : faceSet->Faces()) {
    std::shared_ptr<FcTextureCoordinateIndices> indices;
    if (const auto withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(face)) {
      auto indicesWithVoids = makeEntity<FcTextureCoordinateIndicesWithVoids>();
      indicesWithVoids->setInnerTexCoordIndices(withVoids->InnerCoordIndices());
      indices = std::move(indicesWithVoids);
    } else {
      indices = makeEntity<FcTextureCoordinateIndices>();
    }
    indices->setTexCoordIndex(face->CoordIndex());
    indices->setTexCoordsOf(face);
    allIndices.push_back(std::move(indices));
  }
  auto map = makeEntity<FcIndexedPolygonalTextureMap>();
  map->setTexCoords(textureVertexList(coordinates));
  map->setTexCoordIndices(std::move(allIndices));
  map->setMappedTo(faceSet);
  return map;
}

}  // namespace qor::fc::resource::geometricmodel
