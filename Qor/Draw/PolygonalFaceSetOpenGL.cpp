#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace qor::generate::draw {

namespace {

void raise(std::vector<std::uint32_t>& indices, std::uint32_t by) {
  for (std::uint32_t& index : indices) index += by;
}

void appendTextureCoordinates(PolygonalFaceSetOpenGL& sharp, const PolygonalFaceSetOpenGL& soft) {
  if (!sharp.textureCoordinates && !soft.textureCoordinates) return;
  if (!sharp.textureCoordinates) sharp.textureCoordinates.emplace();
  auto& merged = *sharp.textureCoordinates;
  merged.resize(sharp.coordinates.size());
  if (soft.textureCoordinates)
    merged.insert(merged.end(), soft.textureCoordinates->begin(), soft.textureCoordinates->end());
  merged.resize(sharp.coordinates.size() + soft.coordinates.size());
}

}  // namespace

void mergeSharpAndSoftEdgeFaceSet(PolygonalFaceSetOpenGL& sharp, PolygonalFaceSetOpenGL&& soft) {
  sharp.softFacesBegin = std::min(sharp.softFacesBegin, sharp.faces.size());
  appendTextureCoordinates(sharp, soft);
  const auto offset = static_cast<std::uint32_t>(sharp.coordinates.size());
  sharp.coordinates.insert(sharp.coordinates.end(), soft.coordinates.begin(),
                           soft.coordinates.end());
  sharp.faces.reserve(sharp.faces.size() + soft.faces.size());
  for (PolygonalFaceSetOpenGL::Face& face : soft.faces) {
    raise(face.outer, offset);
    for (auto& hole : face.holes) raise(hole, offset);
    sharp.faces.push_back(std::move(face));
  }
}

}  // namespace qor::generate::draw
