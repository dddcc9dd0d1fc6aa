#include "Host/Targets/RecordingTarget.h"

#include <fmt/format.h>

#include <ostream>
#include <utility>

#include "Host/Targets/CleanText.h"
#include "Host/Targets/DrawnEntity.h"
#include "Qor/Math/Extent.h"

namespace qor::host::targets {

namespace {

using math::Matrix;
using math::Point3d;

/// A negative zero looks like what it is to everybody but a computer.
std::string triple(double x, double y, double z) {
  return fmt::format("({:.9g} {:.9g} {:.9g})", x + 0.0, y + 0.0, z + 0.0);
}
template <class Triple>
std::string triple(const Triple& t) {
  return triple(t.x, t.y, t.z);
}

std::string frameText(const Matrix& m) {
  return fmt::format("x {} y {} z {} origin {}", triple(m.x()), triple(m.y()), triple(m.z()),
                     triple(m.origin()));
}

std::string pointList(const std::vector<Point3d>& points) {
  std::string text = fmt::format("{} points", points.size());
  for (const Point3d& point : points) text += " " + triple(point);
  return text;
}

std::string colourText(const generate::draw::Color& colour) {
  return colour.alpha > 0 ? triple(colour.red, colour.green, colour.blue) : "none";
}

}  // namespace

RecordingTarget::RecordingTarget(const math::CurveDiscretization& discretization, std::ostream& out)
    : DrawInterfaceBase(discretization), m_out(out) {}

void RecordingTarget::line(std::string_view text) {
  m_out << fmt::format("{:{}}{}\n", "", 2 * m_depth, text);
}
void RecordingTarget::open(std::string_view text) {
  line(text);
  ++m_depth;
}
void RecordingTarget::close(std::string_view text) {
  if (m_depth > 0) --m_depth;
  line(text);
}

void RecordingTarget::vTransformationSet(const Matrix& matrix) {
  m_frame = matrix;
  line("vTransformationSet " + frameText(matrix));
}

void RecordingTarget::vTransformationMultiply(const Matrix& matrix,
                                              math::MatrixMultiplyOrder order) {
  const bool left = order == math::MatrixMultiplyOrder::left;
  m_frame = left ? matrix * m_frame : m_frame * matrix;
  line(fmt::format("vTransformationMultiply {} {}", left ? "left" : "right", frameText(matrix)));
}

void RecordingTarget::vPolyline(const std::vector<Point3d>& points) {
  line("vPolyline " + pointList(points));
}
void RecordingTarget::vPoints(const std::vector<Point3d>& points) {
  line("vPoints " + pointList(points));
}

void RecordingTarget::vPolygon(const std::vector<Loop3d>& loops,
                               std::optional<generate::draw::SurfaceDrawType> type) {
  std::string text = "vPolygon";
  if (type) text += *type == generate::draw::SurfaceDrawType::Edges ? " edges" : " surface";
  for (const Loop3d& loop : loops) text += ", loop of " + pointList(loop);
  line(text);
}

void RecordingTarget::faceSet(std::string_view call, const std::vector<Point3d>& points,
                              std::size_t faces, std::string_view kind) {
  std::string text = fmt::format("{} {} points, {} {}", call, points.size(), faces, kind);
  if (const auto box = math::Extent::ofPoints(points); box.isValid())
    text += fmt::format(", from {} to {}", triple(box.minimum()), triple(box.maximum()));
  line(text);
}

void RecordingTarget::triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& set) {
  faceSet("triangulatedFaceSet", set.coordinates(), set.triangles.size(), "triangles");
}
void RecordingTarget::polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& set) {
  faceSet("polygonalFaceSet", set.coordinates, set.faces.size(), "faces");
}

void RecordingTarget::vTextLiteral(const char* text, std::size_t length) {
  line(fmt::format("vTextLiteral '{}'", cleanText({text, length})));
}

void RecordingTarget::startObject(const generate::ObjectInterface* object) {
  const fc::FcBase* entity = drawnEntity(object);
  if (!entity) return open("startObject");
  open(fmt::format("startObject {} '{}' {}", entity->ifcNameUpper(), cleanText(nameText(*entity)),
                   guidText(*entity)));
}
void RecordingTarget::stopObject() { close("stopObject"); }

bool RecordingTarget::boAttribute(const generate::AttributeInterface& attribute) {
  line(fmt::format("boAttribute {} '{}'", cleanText(attribute.name()),
                   cleanText(attribute.valueAsText())));
  return true;
}

void RecordingTarget::setMaterial(std::shared_ptr<const generate::draw::Material> material) {
  m_material = std::move(material);
  if (!m_material) return line("setMaterial none");
  line(fmt::format("setMaterial {} opacity {:.9g}", colourText(m_material->getSurfaceColor()),
                   m_material->getOpacity().value_or(1.0f)));
}

void RecordingTarget::setColor(const generate::draw::Color& color) {
  m_color = color;
  line("setColor " + colourText(color));
}

std::uint32_t RecordingTarget::startBlock(const std::string& name) {
  const auto [entry, isNew] = m_blocks.try_emplace(name, m_blocks.size() + 1);
  open(fmt::format("startBlock {}{}", entry->second, isNew ? "" : " again"));
  return isNew ? 0 : 1;
}
void RecordingTarget::stopBlock() { close("stopBlock"); }

}  // namespace qor::host::targets
