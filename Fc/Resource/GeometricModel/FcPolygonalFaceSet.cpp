#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/CoordinatePositions.h"
#include "Fc/Resource/GeometricModel/FaceColours.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/FcIndexedPolygonalFaceWithVoids.h"
#include "Fc/Resource/GeometricModel/IndexedFaces.h"
#include "Fc/Resource/GeometricModel/TextureCoordinates.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedPolygonalTextureMap.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TextureCoordinate;
using measure::FcPositiveInteger;
using presentationappearance::FcIndexedColourMap;
using presentationappearance::FcIndexedPolygonalTextureMap;

using Face = PolygonalFaceSetOpenGL::Face;

namespace {

/// Looks up the points of faces, into polygons whose memory is used again.
class CornerPoints {
 public:
  using Coordinates = CoordinateLookup::Coordinates;

  CornerPoints(const Coordinates& coordinates, const CoordinatePositions::PnIndex& pnIndex)
      : m_coordinates(coordinates), m_positions(pnIndex, coordinates.size()) {}

  /// False when a ring but a hole without corners, which is reported and left out, has none, or one
  /// can't be found.
  bool look(const FcIndexedPolygonalFace& face, FcPolygonalFaceSet::Polygon& polygon) const {
    polygon.resize(1);
    if (!look(face.CoordIndex(), polygon[0])) return false;
    const auto* withVoids = fcCast<FcIndexedPolygonalFaceWithVoids>(&face);
    if (!withVoids) return true;
    bool found = true;
    for (const auto& hole : withVoids->InnerCoordIndices()) {
      if (!requireThat(face, !hole.empty(),
                       "There is a Void in a Face With Voids which contains no points."))
        continue;
      found = look(hole, polygon.emplace_back()) && found;
    }
    return found;
  }

 private:
  bool look(const std::vector<FcPositiveInteger>& ring, std::vector<math::Point3d>& points) const {
    points.clear();
    for (const FcPositiveInteger& position : ring) {
      const std::uint32_t index = m_positions(position);
      if (index >= m_coordinates.size()) return false;
      const auto& coordinate = m_coordinates[index];
      points.emplace_back(coordinate[0], coordinate[1], coordinate[2]);
    }
    return !points.empty();
  }

  const Coordinates& m_coordinates;
  CoordinatePositions m_positions;
};

}  // namespace

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
  if (!requireThat(
          *this, map.ColourIndex().size() == m_Faces.size(),
          "Mismatch between number of faces in PolygonalFaceSetOpenGL and IndexedColourMap"))
    return std::nullopt;
  const std::vector<math::Point3d> coordinates = m_Coordinates->points();
  const CoordinatePositions positions(m_PnIndex, coordinates.size());
  std::vector<Face> faces(m_Faces.size());
  FaceColours colours(*this, map);
  for (std::size_t k = 0; k < m_Faces.size(); ++k) {
    if (!isPolygon(m_Faces[k].get())) continue;
    if (!colours.take(k)) return std::nullopt;
    if (auto face = indexedFaceOfColour(*m_Faces[k], positions))
      faces[k] = std::move(*face);
    else
      colours.leaveOut(k);
  }
  return colours.parts<FaceSetWithMaterial>(
      coordinates.size(), [&](std::span<const std::uint32_t> chosen, CoordinateSubset& subset) {
        PolygonalFaceSetOpenGL part;
        part.faces.reserve(chosen.size());
        for (const std::uint32_t k : chosen) {
          forEachIndex(faces[k], [&](std::uint32_t& index) { index = subset.number(index); });
          part.faces.push_back(std::move(faces[k]));
        }
        part.coordinates = subset.of(coordinates);
        return part;
      });
}

void FcPolygonalFaceSet::forEachPolygon(const std::function<void(const Polygon&)>& callback) const {
  if (!m_Coordinates) return;
  const CornerPoints corners(m_Coordinates->CoordList(), m_PnIndex);
  Polygon polygon;
  for (const auto& face : m_Faces)
    if (face && corners.look(*face, polygon)) callback(polygon);
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
