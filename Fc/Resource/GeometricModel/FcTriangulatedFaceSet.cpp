#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"

#include <algorithm>

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Resource/GeometricModel/CoordinatePositions.h"
#include "Fc/Resource/GeometricModel/FaceColours.h"
#include "Fc/Resource/GeometricModel/FcCartesianPointList3D.h"
#include "Fc/Resource/GeometricModel/TextureCoordinates.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedColourMap.h"
#include "Fc/Resource/PresentationAppearance/FcIndexedTriangleTextureMap.h"
#include "Fc/Resource/PresentationAppearance/FcTextureVertexList.h"
#include "Qor/Draw/DrawInterface.h"

namespace qor::fc::resource::geometricmodel {

using generate::draw::PolygonalFaceSetOpenGL;
using generate::draw::TextureCoordinate;
using generate::draw::TriangulatedFaceSetOpenGL;
using math::Point3d;
using math::Vector3d;
using measure::FcPositiveInteger;
using presentationappearance::FcIndexedColourMap;
using presentationappearance::FcIndexedTriangleTextureMap;

using Triangle = TriangulatedFaceSetOpenGL::Triangle;
using ModelTriangle = std::array<FcPositiveInteger, 3>;

namespace {

/// False, with an assert, when a corner can't be found.
bool mapTriangle(const ModelTriangle& triangle, const CoordinatePositions& positions,
                 const char* illegalIndex, Triangle& out) {
  out = {positions(triangle[0]), positions(triangle[1]), positions(triangle[2])};
  const std::uint32_t highest = std::max({out[0], out[1], out[2]});
  if (highest < CoordinatePositions::outsideCoordinates) return true;
  report(highest == CoordinatePositions::outsidePnIndex ? "Index pn index mismatch" : illegalIndex);
  return false;
}

FcTriangulatedFaceSet::WithTextureMap modelSet(
    const std::vector<Point3d>& points, std::vector<ModelTriangle> triangles,
    const std::optional<std::vector<TextureCoordinate>>& textureCoordinates) {
  auto result = makeEntity<FcTriangulatedFaceSet>();
  auto coordinates = makeEntity<FcCartesianPointList3D>();
  coordinates->setPoints(points);
  result->setCoordinates(std::move(coordinates));
  result->setCoordIndex(std::move(triangles));

  std::shared_ptr<FcIndexedTriangleTextureMap> map;
  if (textureCoordinates) {
    map = makeEntity<FcIndexedTriangleTextureMap>();
    map->setTexCoords(textureVertexList(*textureCoordinates));
    map->setTexCoordIndex(result->CoordIndex());
    map->setMappedTo(result);
  }
  return {std::move(result), std::move(map)};
}

ModelTriangle modelTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  return {std::int64_t{a} + 1, std::int64_t{b} + 1, std::int64_t{c} + 1};
}

bool isTriangle(const PolygonalFaceSetOpenGL::Face& face) {
  return face.outer.size() == 3 && face.holes.empty();
}

template <class Triangles>
void turnRound(Triangles& triangles) {
  for (auto& triangle : triangles) std::reverse(triangle.begin(), triangle.end());
}

}  // namespace

void FcTriangulatedFaceSet::draw(const FcDrawParams& params) const {
  generate::draw::DrawInterface* target = materialTarget(params);
  if (!target) {
    if (auto faceSet = createQorTriangulatedFaceSet())
      params->triangulatedFaceSet(std::move(*faceSet));
    return;
  }
  for (TriangulatedFaceSetWithMaterial& part : createFaceSetsWithMaterials()) {
    if (part.material) target->setMaterial(std::move(part.material));
    params->triangulatedFaceSet(std::move(part.faceSet));
  }
}

std::optional<TriangulatedFaceSetOpenGL> FcTriangulatedFaceSet::createQorTriangulatedFaceSet()
    const {
  if (!hasCoordinates()) {
    report(*this, "Expect Coordinates() to be set.");
    return std::nullopt;
  }
  TriangulatedFaceSetOpenGL result;
  result.setVertexData(m_Coordinates->points(), getNormals(), getTextureCoordinates());
  result.triangles.reserve(m_CoordIndex.size());
  const CoordinatePositions positions(m_PnIndex, result.coordinates().size());
  Triangle mapped;
  for (const ModelTriangle& triangle : m_CoordIndex)
    if (mapTriangle(triangle, positions, "Illegal index in face", mapped))
      result.triangles.push_back(mapped);
  return result;
}

std::vector<TriangulatedFaceSetWithMaterial> FcTriangulatedFaceSet::createFaceSetsWithMaterials()
    const {
  if (const auto map = usableColourMap())
    if (auto parts = splitByColour(*map)) return std::move(*parts);

  std::vector<TriangulatedFaceSetWithMaterial> result;
  if (auto all = createQorTriangulatedFaceSet()) result.push_back({std::move(*all), nullptr});
  return result;
}

std::optional<std::vector<TriangulatedFaceSetWithMaterial>> FcTriangulatedFaceSet::splitByColour(
    const FcIndexedColourMap& map) const {
  if (!requireThat(
          *this, map.ColourIndex().size() == m_CoordIndex.size(),
          "Mismatch between number of faces in TriangulatedFaceSetOpenGL and IndexedColourMap"))
    return std::nullopt;
  // As one set first: it checks that there is a normal for each point.
  generate::draw::VertexData all;
  all.setVertexData(m_Coordinates->points(), getNormals());
  const CoordinatePositions positions(m_PnIndex, all.coordinates().size());
  std::vector<Triangle> triangles(m_CoordIndex.size());
  FaceColours colours(*this, map);
  for (std::size_t k = 0; k < m_CoordIndex.size(); ++k) {
    if (!colours.take(k)) return std::nullopt;
    if (!mapTriangle(m_CoordIndex[k], positions, "Invalid index in FcTriangulatedFaceSet",
                     triangles[k]))
      colours.leaveOut(k);
  }
  return colours.parts<TriangulatedFaceSetWithMaterial>(
      all.coordinates().size(),
      [&](std::span<const std::uint32_t> chosen, CoordinateSubset& subset) {
        TriangulatedFaceSetOpenGL part;
        part.triangles.reserve(chosen.size());
        for (const std::uint32_t k : chosen) {
          Triangle& triangle = part.triangles.emplace_back(triangles[k]);
          for (std::uint32_t& index : triangle) index = subset.number(index);
        }
        part.setVertexData(subset.of(all.coordinates()), subset.of(all.normals()));
        return part;
      });
}

std::optional<std::vector<Vector3d>> FcTriangulatedFaceSet::getNormals() const {
  if (!m_Normals) return std::nullopt;
  std::vector<Vector3d> normals;
  normals.reserve(m_Normals->size());
  for (const auto& normal : *m_Normals) normals.emplace_back(normal[0], normal[1], normal[2]);
  return normals;
}

std::optional<std::vector<TextureCoordinate>> FcTriangulatedFaceSet::getTextureCoordinates() const {
  if (!m_Coordinates) return std::nullopt;
  const auto map = fcCast<FcIndexedTriangleTextureMap>(m_HasTextures.lockFirst());
  if (!map || !map->TexCoords()) return std::nullopt;
  const std::size_t vertexCount = m_Coordinates->CoordList().size();
  return textureCoordinatesByVertex(*map, m_CoordIndex, CoordinatePositions(m_PnIndex, vertexCount),
                                    vertexCount);
}

FcTriangulatedFaceSet::WithTextureMap FcTriangulatedFaceSet::fromQorPolygonalFaceSet(
    const TriangulatedFaceSetOpenGL& faceSet) {
  std::vector<ModelTriangle> triangles;
  triangles.reserve(faceSet.triangles.size());
  for (const Triangle& triangle : faceSet.triangles)
    triangles.push_back(modelTriangle(triangle[0], triangle[1], triangle[2]));
  WithTextureMap result =
      modelSet(faceSet.coordinates(), std::move(triangles), faceSet.textureCoordinates());
  if (faceSet.normals()) {
    std::vector<std::array<measure::FcParameterValue, 3>> normals;
    normals.reserve(faceSet.normals()->size());
    for (const Vector3d& normal : *faceSet.normals())
      normals.push_back({normal.x, normal.y, normal.z});
    result.first->setNormals(std::move(normals));
  }
  return result;
}

FcTriangulatedFaceSet::WithTextureMap FcTriangulatedFaceSet::fromQorPolygonalFaceSet(
    const PolygonalFaceSetOpenGL& faceSet) {
  std::vector<ModelTriangle> triangles;
  triangles.reserve(faceSet.faces.size());
  for (const PolygonalFaceSetOpenGL::Face& face : faceSet.faces) {
    if (isTriangle(face))
      triangles.push_back(modelTriangle(face.outer[0], face.outer[1], face.outer[2]));
    else
      report("There is a face which is no triangle");
  }
  return modelSet(faceSet.coordinates, std::move(triangles), faceSet.textureCoordinates);
}

bool FcTriangulatedFaceSet::containsTriangularFace(const PolygonalFaceSetOpenGL& faceSet) {
  return std::any_of(faceSet.faces.begin(), faceSet.faces.end(), isTriangle);
}

void FcTriangulatedFaceSet::transform(const math::Matrix& matrix) {
  if (!m_Coordinates) {
    report(*this, "Expect Coordinates() to be set.");
    return;
  }
  m_Coordinates->transform(matrix);
  if (m_Normals) {
    // Normals move by the transposed inverse.
    const math::Matrix inverse = matrix.inverse();
    for (auto& normal : *m_Normals) {
      const Vector3d old(normal[0], normal[1], normal[2]);
      const Vector3d moved =
          Vector3d(old.dot(inverse.x()), old.dot(inverse.y()), old.dot(inverse.z())).normalized();
      normal = {moved.x, moved.y, moved.z};
    }
  }
  if (!matrix.isMirror()) return;
  turnRound(m_CoordIndex);
  const auto map = fcCast<FcIndexedTriangleTextureMap>(m_HasTextures.lockFirst());
  if (!map || !map->TexCoordIndex()) return;
  auto places = *map->TexCoordIndex();
  turnRound(places);
  map->setTexCoordIndex(std::move(places));
}

}  // namespace qor::fc::resource::geometricmodel
