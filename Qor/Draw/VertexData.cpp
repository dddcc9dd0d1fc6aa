#include "Qor/Draw/VertexData.h"

#include <string>
#include <utility>

#include "Qor/Assert/Report.h"

namespace qor::generate::draw {

namespace {

template <class List>
void dropUnlessFits(std::optional<List>& list, std::size_t points, const char* what) {
  if (!list || list->size() == points) return;
  report(std::to_string(list->size()) + " " + what + " for " + std::to_string(points) +
         " points, left out");
  list.reset();
}

}  // namespace

void VertexData::setVertexData(std::vector<math::Point3d> points,
                               std::optional<std::vector<math::Vector3d>> normals,
                               std::optional<std::vector<TextureCoordinate>> textureCoordinates) {
  m_coordinates = std::move(points);
  m_normals = std::move(normals);
  m_textureCoordinates = std::move(textureCoordinates);
  dropUnlessFits(m_normals, m_coordinates.size(), "normals");
  dropUnlessFits(m_textureCoordinates, m_coordinates.size(), "texture coordinates");
}

}  // namespace qor::generate::draw
