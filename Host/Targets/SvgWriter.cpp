#include "Host/Targets/SvgWriter.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>
#include <ostream>

#include "Host/Targets/CleanText.h"
#include "Host/Targets/FeatureEdges.h"

namespace qor::host::targets {

namespace {

using math::Matrix;
using math::Point3d;
using math::Vector3d;

constexpr double pictureWidth = 1600;
constexpr double lowest = 300;  // of the drawing, without what is below and above it
constexpr double highest = 1100;
constexpr double titleHeight = 50;
constexpr double footHeight = 50;
constexpr double textSize = 13;

double heightOf(View view, const math::Extent& box) {
  const Vector3d size = box.transformExtent(viewFrame(view, box.center())).size();
  const double wanted = size.x > 0 ? pictureWidth * size.y / size.x : highest;
  return std::clamp(wanted, lowest, highest);
}

std::string colourOf(const SceneMaterial& material) {
  const auto byte = [](float value) { return std::lround(std::clamp(value, 0.0f, 1.0f) * 255); };
  // What is nearly white is told from the paper by a grey.
  if (std::min({material.red, material.green, material.blue}) > 0.85f) return "#999999";
  return fmt::format("#{:02x}{:02x}{:02x}", byte(material.red), byte(material.green),
                     byte(material.blue));
}

/// 1, 2 or 5 times a power of ten: the longest such length up to `most`.
double roundLength(double most) {
  const double power = std::pow(10, std::floor(std::log10(most)));
  for (const double factor : {5.0, 2.0})
    if (factor * power <= most) return factor * power;
  return power;
}

class Drawing {
 public:
  Drawing(const Scene& scene, const Camera& camera) : m_scene(scene), m_camera(camera) {}

  void add(const SceneObject& object) {
    const std::size_t before = m_text.size();
    m_scene.forEachContent(
        object, [this](const SceneContent& content, const Matrix& frame, MaterialIndex inherited) {
          const Matrix toPicture = frame * m_camera.frame();
          addEdges(content.mesh, toPicture);
          for (const SceneLine& line : content.lines) addLine(line, toPicture, inherited);
          for (const SceneText& text : content.texts) addText(text, toPicture, inherited);
        });
    if (m_text.size() == before) return;
    const std::string head =
        fmt::format("<g><title>{}</title>\n", xmlText(object.className + " " + object.name));
    m_text.insert(before, head);
    m_text += "</g>\n";
  }

  const std::string& text() const { return m_text; }

 private:
  auto end() { return std::back_inserter(m_text); }
  const SceneMaterial& material(MaterialIndex index, MaterialIndex inherited) const {
    return m_scene.materials[index == inheritedMaterial ? inherited : index];
  }

  void addEdges(const Mesh& mesh, const Matrix& toPicture) {
    if (mesh.triangles.empty()) return;
    m_text += "<path class=\"edge\" d=\"";
    for (const auto& edge : featureEdges(mesh.points, mesh.triangles)) {
      const Point3d a = mesh.points[edge[0]] * toPicture, b = mesh.points[edge[1]] * toPicture;
      fmt::format_to(end(), "M{:.2f} {:.2f}L{:.2f} {:.2f}", a.x, a.y, b.x, b.y);
    }
    m_text += "\"/>\n";
  }

  void addLine(const SceneLine& line, const Matrix& toPicture, MaterialIndex inherited) {
    const std::string colour = colourOf(material(line.material, inherited));
    if (line.points.size() == 1) {
      const Point3d p = line.points[0] * toPicture;
      fmt::format_to(end(), "<circle cx=\"{:.2f}\" cy=\"{:.2f}\" r=\"2\" fill=\"{}\"/>\n", p.x, p.y,
                     colour);
      return;
    }
    fmt::format_to(end(), "<polyline stroke=\"{}\" points=\"", colour);
    for (const Point3d& point : line.points) {
      const Point3d p = point * toPicture;
      fmt::format_to(end(), "{:.2f},{:.2f} ", p.x, p.y);
    }
    m_text += "\"/>\n";
  }

  void addText(const SceneText& text, const Matrix& toPicture, MaterialIndex inherited) {
    const Point3d at = text.frame.origin() * toPicture;
    const Vector3d along = text.frame.x() * toPicture;
    double angle = std::atan2(along.y, along.x) * 180 / std::numbers::pi;
    // Never upside down, and upward where it is vertical, as draughtsmen write.
    if (angle > 89.9 || angle < -90.1) angle += angle > 0 ? -180 : 180;
    fmt::format_to(
        end(),
        "<text x=\"{0:.2f}\" y=\"{1:.2f}\" transform=\"rotate({2:.1f} {0:.2f} {1:.2f})\" "
        "fill=\"{3}\">{4}</text>\n",
        at.x, at.y, angle, colourOf(material(text.material, inherited)), xmlText(text.text));
  }

  const Scene& m_scene;
  const Camera& m_camera;
  std::string m_text;
};

std::string scaleBar(double pixelsPerMetre, double y) {
  const double metres = roundLength(pictureWidth / 5 / pixelsPerMetre);
  const double left = 40, right = left + metres * pixelsPerMetre;
  return fmt::format(
      "<path stroke=\"#222\" stroke-width=\"2\" d=\"M{0:.2f} {2:.2f}v8h{3:.2f}v-8\"/>\n"
      "<text x=\"{1:.2f}\" y=\"{4:.2f}\" fill=\"#222\">{5:g} m</text>\n",
      left, right + 8, y, right - left, y + 10, metres);
}

}  // namespace

void writeSvg(const Scene& scene, View view, const std::string& title, std::ostream& out) {
  math::Extent box = scene.box();
  if (!box.isValid()) box = {{0, 0, 0}, {1, 1, 1}};
  const double height = heightOf(view, box);
  const Camera camera(view, box, pictureWidth, height);
  Drawing drawing(scene, camera);
  for (const SceneObject& object : scene.objects) drawing.add(object);
  const double whole = titleHeight + height + footHeight;
  out << fmt::format(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" height=\"{1:.0f}\" "
             "viewBox=\"0 0 {0} {1:.0f}\" font-family=\"sans-serif\" font-size=\"{2}\">\n"
             "<style>.edge{{stroke:#b0b0b0;stroke-width:0.7}}path,polyline{{fill:none;"
             "stroke-linejoin:round}}polyline{{stroke-width:1.5}}</style>\n"
             "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n"
             "<text x=\"40\" y=\"34\" font-size=\"22\" fill=\"#222\">{3}</text>\n"
             "<g transform=\"translate(0 {4})\">\n",
             pictureWidth, whole, textSize, xmlText(title), titleHeight)
      << drawing.text() << "</g>\n"
      << scaleBar(camera.pixelsPerMetre(), whole - footHeight / 2 - 8) << "</svg>\n";
}

}  // namespace qor::host::targets
