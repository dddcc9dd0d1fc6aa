#include "Tests/Support/RecordingTarget.h"

#include <cstdio>

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

void RecordingTarget::mayFail() const {
  if (m_callsThatMayFail++ == callsBeforeFailure) throw Failure();
}

void RecordingTarget::record(std::string call) {
  mayFail();
  calls.push_back(std::move(call));
}

template <class T>
void RecordingTarget::keep(std::vector<Drawn<T>>& list, T what) {
  list.push_back({std::move(what), m_frame, {}});
  if (m_material) list.back().colour = m_material->getSurfaceColor();
}

void RecordingTarget::open(std::string call) {
  record(std::move(call));
  ++m_depth;
}

void RecordingTarget::close(std::string call) {
  calls.push_back(std::move(call));
  --m_depth;
}

math::Matrix RecordingTarget::transformationGet() const {
  mayFail();
  return m_frame;
}

void RecordingTarget::vTransformationMultiply(const math::Matrix& matrix,
                                              math::MatrixMultiplyOrder order) {
  mayFail();
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
  lastPoints = points.data();
  record(points.size() > 100 ? "polyline of " + std::to_string(points.size())
                             : "polyline" + text(points));
  keep(polylines, points);
}

void RecordingTarget::vPolygon(const std::vector<Loop3d>& loops,
                               std::optional<generate::draw::SurfaceDrawType> /*type*/) {
  std::string line = "polygon";
  for (std::size_t i = 0; i < loops.size(); ++i) line += (i > 0 ? " |" : "") + text(loops[i]);
  record(std::move(line));
  keep(polygons, loops);
}

void RecordingTarget::vPolygon(const std::vector<Loop2d>& loops,
                               std::optional<generate::draw::SurfaceDrawType> /*type*/) {
  record("flat polygon of " + std::to_string(loops.size()));
  keep(flatPolygons, loops);
}

void RecordingTarget::triangulatedFaceSet(generate::draw::TriangulatedFaceSetOpenGL&& faceSet) {
  record("triangles " + test::text(faceSet.coordinates().size(), faceSet.triangles.size()));
  keep(triangulatedSets, std::move(faceSet));
}

void RecordingTarget::polygonalFaceSet(generate::draw::PolygonalFaceSetOpenGL&& faceSet) {
  record("polygons " + test::text(faceSet.coordinates.size(), faceSet.faces.size()));
  keep(polygonalSets, std::move(faceSet));
}

void RecordingTarget::vTextLiteral(const char* text, std::size_t length) {
  record("text " + std::string(text, length) + this->text({math::Point3d()}));
  keep(texts, std::string(text, length));
}

void RecordingTarget::startObject(const generate::ObjectInterface* object) {
  const auto* const holder = dynamic_cast<const fc::ObjectInterface*>(object);
  const auto* const root =
      holder ? dynamic_cast<const fc::core::kernel::FcRoot*>(holder->objectGet()) : nullptr;
  open(root ? std::string("start ") + root->ifcName() + " " + root->Name().value_or("")
            : "start nothing");
}

void RecordingTarget::stopObject() { close("stop"); }

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

std::shared_ptr<const generate::draw::Material> RecordingTarget::getMaterial() const {
  mayFail();
  return m_material;
}

std::uint32_t RecordingBlockTarget::startBlock(const std::string& name) {
  const bool isKnown = m_blocks.contains(name);
  open(isKnown ? "block again" : "block");
  m_blocks.insert(name);
  return isKnown ? 1 : 0;
}

}  // namespace qor::test
