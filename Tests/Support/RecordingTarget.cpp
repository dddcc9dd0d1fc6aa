#include "Tests/Support/RecordingTarget.h"

#include <cstdio>
#include <stdexcept>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Drawing/ObjectInterface.h"

namespace qor::test {

namespace {

std::string text(double number) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.9g", std::abs(number) < 1e-9 ? 0.0 : number);
  return buffer;
}

std::string text(std::size_t points, std::size_t faces) {
  return std::to_string(points) + " points " + std::to_string(faces) + " faces";
}

}  // namespace

std::vector<std::string> RecordingTarget::callsOf(const std::string& word) const {
  std::vector<std::string> found;
  for (const std::string& call : calls)
    if (call == word || call.rfind(word + " ", 0) == 0) found.push_back(call);
  return found;
}

void RecordingTarget::vTransformationMultiply(const math::Matrix& matrix,
                                              math::MatrixMultiplyOrder order) {
  m_frame = order == math::MatrixMultiplyOrder::left ? matrix * m_frame : m_frame * matrix;
}

std::string RecordingTarget::text(const std::vector<math::Point3d>& points) const {
  std::string line;
  for (const math::Point3d& point : points) {
    const math::Point3d moved = point * m_frame;
    line +=
        " (" + test::text(moved.x) + " " + test::text(moved.y) + " " + test::text(moved.z) + ")";
  }
  return line;
}

void RecordingTarget::vPolyline(const std::vector<math::Point3d>& points) {
  if (!problem.empty()) throw std::runtime_error(problem);
  lastPoints = points.data();
  if (points.size() > 100) return record("polyline of " + std::to_string(points.size()));
  record("polyline" + text(points));
}

void RecordingTarget::vPolygon(const std::vector<Loop3d>& loops,
                               std::optional<generate::draw::SurfaceDrawType> /*type*/) {
  std::string line = "polygon";
  for (std::size_t i = 0; i < loops.size(); ++i) line += (i > 0 ? " |" : "") + text(loops[i]);
  record(std::move(line));
}

void RecordingTarget::triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) {
  record("triangles " + test::text(faceSet.coordinates().size(), faceSet.triangles.size()));
}

void RecordingTarget::polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) {
  record("polygons " + test::text(faceSet.coordinates.size(), faceSet.faces.size()));
}

void RecordingTarget::vTextLiteral(const char* text, std::size_t length) {
  record("text " + std::string(text, length) + this->text({math::Point3d()}));
}

void RecordingTarget::startObject(const generate::ObjectInterface* object) {
  ++m_depth;
  const auto* const holder = dynamic_cast<const fc::ObjectInterface*>(object);
  const auto* const root =
      holder ? dynamic_cast<const fc::core::kernel::FcRoot*>(holder->objectGet()) : nullptr;
  record(root ? std::string("start ") + root->ifcName() + " " + root->Name().value_or("")
              : "start nothing");
}

void RecordingTarget::stopObject() {
  --m_depth;
  record("stop");
}

bool RecordingTarget::boAttribute(const generate::AttributeInterface& attribute) {
  record("attribute " + attribute.name() + " " + attribute.valueAsText());
  return true;
}

void RecordingTarget::setMaterial(std::shared_ptr<const generate::draw::Material> material) {
  m_material = std::move(material);
  if (!m_material) return record("material none");
  materials.emplace(m_material.get(), m_material);
  const auto& color = m_material->getSurfaceColor();
  record("material " + test::text(color.red) + " " + test::text(color.green) + " " +
         test::text(color.blue));
}

std::uint32_t RecordingBlockTarget::startBlock(const std::string& name) {
  const bool isKnown = m_blocks[name]++ > 0;
  record(isKnown ? "block again" : "block");
  return isKnown ? 1 : 0;
}

}  // namespace qor::test
