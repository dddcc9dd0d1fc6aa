#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/CoordinatePositions.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFaceWithVoids.h"
#include "Fc/Resource/GeometricModel/IndexedFaces.h"
#include "Fc/Resource/GeometricModel/TextureCoordinates.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgbList.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedPolygonalTextureMap.h"
#include "Fc/Shapes/ColourSplit.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TextureCoordinate;
using measure::FcPositiveInteger;
using presentationappearance::FcIndexedColourMap;
using presentationappearance::FcIndexedPolygonalTextureMap;

using Face = PolygonalFaceSetOpenGL::Face;

void FcPolygonalFaceSet::draw(const FcDrawParams& params) const {
  generate::draw::DrawInterface* target = materialTarget(params);
  if (!target) {
    if (auto faceSet = createQorPolygonalFaceSet()) params->polygonalFaceSet(std::move(*faceSet));
    return;
  }
  for (FaceSetWithMaterial& part : createFaceSetsWithMaterials()) {
    if (part.material) target->setMaterial(std::move(part.material));
    params->polygonalFaceSet(std::move(part.faceSet));
  }
}

std::optional<PolygonalFaceSetOpenGL> FcPolygonalFaceSet::createQorPolygonalFaceSet() const {
  if (!hasCoordinates()) {
    report(*this, "Expect Coordinates() to be set.");
    return std::nullopt;
  }
  PolygonalFaceSetOpenGL result;
  result.coordinates = m_Coordinates->points();
  result.textureCoordinates = getTextureCoordinates();
  result.faces.reserve(m_Faces.size());
  const CoordinatePositions positions(m_PnIndex, result.coordinates.size());
  for (const auto& face : m_Faces)
    if (std::optional<Face> indexed = indexedFace(face.get(), positions))
      result.faces.push_back(std::move(*indexed));
  return result;
}

std::vector<FaceSetWithMaterial> FcPolygonalFaceSet::createFaceSetsWithMaterials() const {
  if (const auto map = usableColourMap())
    if (auto parts = splitByColour(*map)) return std::move(*parts);

  std::vector<FaceSetWithMaterial> result;
  if (auto all = createQorPolygonalFaceSet()) result.push_back({std::move(*all), nullptr});
  return result;
}

std::optional<std::vector<FaceSetWithMaterial>> FcPolygonalFaceSet::splitByColour(
    const FcIndexedColourMap& map) const {
  if (map.ColourIndex().size() != m_Faces.size()) {
    report(*this,
           "Mismatch between number of faces in PolygonalFaceSetOpenGL and IndexedColourMap");
    return std::nullopt;
  }
  const auto& coordinates = m_Coordinates->CoordList();
  const std::size_t colourCount = map.Colours()->ColourList().size();
  const CoordinatePositions positions(m_PnIndex, coordinates.size());
  std::vector<Face> faces(m_Faces.size());
  std::vector<std::uint32_t> colours(m_Faces.size(), ~std::uint32_t{0});
  for (std::size_t k = 0; k < m_Faces.size(); ++k) {
    if (!isPolygon(m_Faces[k].get())) continue;
    const std::uint64_t colour = static_cast<std::uint64_t>(map.ColourIndex()[k].value()) - 1;
    if (colour >= colourCount) {
      report(*this, "Invalid colour index in FcIndexedColourMap.");
      return std::nullopt;
    }
    if (auto face = indexedFaceOfColour(*m_Faces[k], positions)) {
      faces[k] = std::move(*face);
      colours[k] = static_cast<std::uint32_t>(colour);
    }
  }

  std::vector<FaceSetWithMaterial> result;
  const FacesByColour byColour(colours, colourCount);
  CoordinateSubset subset(coordinates.size());
  for (std::size_t colour = 0; colour < colourCount; ++colour) {
    if (byColour.faces(colour).empty()) continue;
    PolygonalFaceSetOpenGL part;
    subset.begin();
    for (const std::uint32_t k : byColour.faces(colour)) {
      forEachIndex(faces[k], [&subset](std::uint32_t& index) { index = subset.number(index); });
      part.faces.push_back(std::move(faces[k]));
    }
    part.coordinates.reserve(subset.used().size());
    for (const std::uint32_t used : subset.used())
      part.coordinates.emplace_back(coordinates[used][0], coordinates[used][1],
                                    coordinates[used][2]);
    result.push_back({std::move(part), materialOfColour(map, colour)});
  }
  return result;
}

void FcPolygonalFaceSet::forEachPolygon(const std::function<void(const Polygon&)>& callback) const {
  if (!m_Coordinates) return;
  const auto& coordinates = m_Coordinates->CoordList();
  const CoordinatePositions positions(m_PnIndex, coordinates.size());
  Polygon polygon;
  const auto look = [&](const std::vector<FcPositiveInteger>& ring,
                        std::vector<math::Point3d>& points) {
    points.clear();
    for (const FcPositiveInteger& position : ring) {
      const std::uint32_t index = positions(position);
      if (index >= coordinates.size()) return false;
      points.emplace_back(coordinates[index][0], coordinates[index][1], coordinates[index][2]);
    }
    return !points.empty();
  };
  for (const auto& face : m_Faces) {
    if (!face) continue;
    polygon.resize(1);
    if (!look(face->CoordIndex(), polygon[0])) continue;
    bool found = true;
    if (const auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(face.get())) {
      for (const auto& hole : withVoids->InnerCoordIndices()) {
        if (hole.empty()) {
          report(*this, "There is a Void in a Face With Voids which contains no points.");
          continue;
        }
        polygon.emplace_back();
        found = look(hole, polygon.back()) && found;
      }
    }
    if (found) callback(polygon);
  }
}

std::optional<std::vector<TextureCoordinate>> FcPolygonalFaceSet::getTextureCoordinates() const {
  if (!m_Coordinates) return std::nullopt;
  const auto map = fcCast<FcIndexedPolygonalTextureMap>(m_HasTextures.lockFirst());
  if (!map || !map->TexCoords()) return std::nullopt;
  const std::size_t vertexCount = m_Coordinates->CoordList().size();
  return textureCoordinatesByVertex(*map, CoordinatePositions(m_PnIndex, vertexCount), vertexCount);
}

std::pair<std::shared_ptr<FcPolygonalFaceSet>, std::shared_ptr<FcIndexedPolygonalTextureMap>>
FcPolygonalFaceSet::fromQorPolygonalFaceSet(const PolygonalFaceSetOpenGL& faceSet) {
  auto result = makeEntity<FcPolygonalFaceSet>();
  auto coordinates = makeEntity<FcCartesianPointList3D>();
  coordinates->setPoints(faceSet.coordinates);
  result->setCoordinates(std::move(coordinates));
  std::vector<std::shared_ptr<FcIndexedPolygonalFace>> faces;
  faces.reserve(faceSet.faces.size());
  for (const Face& face : faceSet.faces) faces.push_back(modelFace(face));
  result->setFaces(std::move(faces));

  std::shared_ptr<FcIndexedPolygonalTextureMap> map;
  if (faceSet.textureCoordinates) map = polygonalTextureMap(result, *faceSet.textureCoordinates);
  return {std::move(result), std::move(map)};
}

FcPositiveInteger FcPolygonalFaceSet::addPoint(const math::Point3d& point) {
  if (!m_Coordinates) m_Coordinates = makeEntity<FcCartesianPointList3D>();
  return m_Coordinates->addPoint(point);
}

void FcPolygonalFaceSet::transform(const math::Matrix& matrix) {
  if (!m_Coordinates) {
    report(*this, "Expect Coordinates() to be set.");
    return;
  }
  m_Coordinates->transform(matrix);
  if (!matrix.isMirror()) return;
  std::vector<FcIndexedPolygonalFace*> distinct;
  distinct.reserve(m_Faces.size());
  for (const auto& face : m_Faces)
    if (face) distinct.push_back(face.get());
  std::sort(distinct.begin(), distinct.end());
  distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
  for (FcIndexedPolygonalFace* face : distinct) turnRound(*face);
}

}  // namespace qor::fc::resource::geometricmodel
