#include "Host/Cli/DrawCommand.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string_view>
#include <typeindex>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Core/ProductExtension/FcSpace.h"
#include "Host/Cli/AttributeValue.h"
#include "Host/Cli/DrawingReport.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/OutputFile.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/SceneTree.h"
#include "Host/Cli/WholeNumber.h"
#include "Host/Targets/GltfWriter.h"
#include "Host/Targets/ObjWriter.h"
#include "Host/Targets/RecordingTarget.h"
#include "Host/Targets/ScenePicture.h"
#include "Host/Targets/SceneTarget.h"
#include "Host/Targets/SvgWriter.h"
#include "Qor/Image/Png.h"

namespace qor::host::cli {

namespace {

using targets::Scene;
using targets::View;

/// What was asked for, understood.
struct Plan {
  math::CurveDiscretization discretization;
  View view;
  std::size_t width;
  std::size_t height;
};

using Size = std::pair<std::uint64_t, std::uint64_t>;

std::optional<Size> sizeOf(const std::string& text) {
  constexpr std::size_t most = 10000;
  const std::optional<Size> size = twoWholeNumbers(text, 'x');
  if (!size || std::min(size->first, size->second) == 0) return std::nullopt;
  return std::max(size->first, size->second) <= most ? size : std::nullopt;
}

/// What is written into a file, and how it is shown where the file is a picture.
struct Drawn {
  const Scene& scene;
  const Plan& plan;
  std::string title;
};

bool writeGlbFile(const std::filesystem::path& path, const Drawn& drawn, Console& console) {
  return writeFile(path, console,
                   [&](std::ostream& out) { return targets::writeGlb(drawn.scene, out); });
}

bool writeObjFiles(const std::filesystem::path& path, const Drawn& drawn, Console& console) {
  std::filesystem::path materialPath = path;
  materialPath.replace_extension(".mtl");
  return writeFile(path, console, [&](std::ostream& out) {
    return writeFile(materialPath, console, [&](std::ostream& materials) {
      targets::writeObj(drawn.scene, materialPath.filename().string(), out, materials);
      return true;
    });
  });
}

bool writePngFile(const std::filesystem::path& path, const Drawn& drawn, Console& console) {
  return writeFile(path, console, [&](std::ostream& out) {
    const Plan& plan = drawn.plan;
    out << image::toPng(targets::pictureOf(drawn.scene, plan.view, plan.width, plan.height));
    return true;
  });
}

bool writeSvgFile(const std::filesystem::path& path, const Drawn& drawn, Console& console) {
  return writeFile(path, console, [&](std::ostream& out) {
    targets::writeSvg(drawn.scene, drawn.plan.view, drawn.title, out);
    return true;
  });
}

/// A kind of file, by the ending of its name. The writer gives false, after a line that says why.
struct Format {
  std::string_view ending;
  bool (*write)(const std::filesystem::path& path, const Drawn& drawn, Console& console);
};

constexpr Format formats[] = {{".glb", writeGlbFile},
                              {".obj", writeObjFiles},
                              {".png", writePngFile},
                              {".svg", writeSvgFile}};

/// Null, after a line that says why, for an ending that none has.
const Format* formatOf(const std::filesystem::path& path, Console& console) {
  const auto found = std::ranges::find(formats, path.extension().string(), &Format::ending);
  if (found != std::end(formats)) return found;
  std::vector<std::string_view> endings;
  for (const Format& format : formats) endings.push_back(format.ending);
  refuse(console,
         fmt::format("{} ends in none of {}", inQuotes(path.string()), fmt::join(endings, ", ")));
  return nullptr;
}

std::optional<Plan> planOf(const DrawOptions& options, Console& console) {
  const auto discretization = discretizationOf(options, console);
  if (!discretization) return std::nullopt;
  const auto view = targets::viewFromText(options.view);
  const auto size = sizeOf(options.size);
  for (const auto& output : options.outputs)
    if (!formatOf(output, console)) return std::nullopt;
  if (!view)
    refuse(console, fmt::format("{} is none of plan, front, side, iso", inQuotes(options.view)));
  else if (!size)
    refuse(console, fmt::format("{} is no size of a picture, such as 1600x1200, each side up to "
                                "10000",
                                inQuotes(options.size)));
  else
    return Plan{*discretization, *view, size->first, size->second};
  return std::nullopt;
}

/// What a scene holds, a block once.
struct Counts {
  explicit Counts(const Scene& scene) : blocks(scene.blocks.size()) {
    for (const targets::SceneObject& object : scene.objects) {
      objects += object.content.isEmpty() ? 0 : 1;
      add(object.content);
    }
    for (const targets::SceneContent& block : scene.blocks) add(block);
  }
  void add(const targets::SceneContent& content) {
    triangles += content.mesh.triangles.size() / 3;
    lines += content.lines.size();
    texts += content.texts.size();
  }

  std::size_t objects = 0, blocks, triangles = 0, lines = 0, texts = 0;
};

void print(const DrawOptions& options, const Scene& scene, const DrawingReport& report,
           std::ostream& out) {
  const Counts counts(scene);
  if (options.json) {
    nlohmann::ordered_json json{{"file", options.file.string()}, {"objects", counts.objects},
                                {"blocks", counts.blocks},       {"triangles", counts.triangles},
                                {"lines", counts.lines},         {"texts", counts.texts}};
    json["outputs"] = nlohmann::ordered_json::array();
    for (const auto& output : options.outputs) json["outputs"].push_back(output.string());
    if (options.why) json["why"] = report.why();
    out << toText(json);
    return;
  }
  out << fmt::format("{} objects, {} shared blocks, {} triangles, {} lines, {} texts\n",
                     counts.objects, counts.blocks, counts.triangles, counts.lines, counts.texts);
  for (const auto& output : options.outputs) out << fmt::format("{}\n", printable(output.string()));
  report.printWhy(out);
}

std::string titleOf(const DrawOptions& options) {
  std::string title = options.file.filename().string();
  if (!options.context.empty()) title += ", " + options.context;
  return title + ", " + options.view;
}

/// Shows and hides spaces and openings as they are asked for.
void choose(const DrawOptions& options, fc::DrawStatus& status) {
  using namespace fc::core::productextension;
  const auto show = [&](const std::type_info& type, bool isShown) {
    status.setEnabled(fc::DrawStatus::StateKey(std::type_index(type)), isShown);
  };
  if (options.status.empty() && options.id.empty()) show(typeid(FcSpace), options.spaces);
  if (options.openings) show(typeid(FcOpeningElement), true);
}

ExitCode trace(const DrawOptions& options, const step::ReadResult& model, const Plan& plan,
               const fc::DrawStatus& status, RepresentationChoice* choice, Console& console) {
  targets::RecordingTarget target(plan.discretization, console.out);
  DrawingReport report(model, options);
  const bool drawn = drawModel(model, options, status, choice, target, report, console);
  return drawn ? report.end(console.err) : ExitCode::impossible;
}

}  // namespace

ExitCode runDraw(const DrawOptions& options, Console& console) {
  const auto plan = planOf(options, console);
  if (!plan) return ExitCode::impossible;
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  auto status = readDrawStatus(*model->data, options.status, console);
  if (!status) return ExitCode::impossible;
  choose(options, *status);
  RepresentationChoice chosen(options.context);
  RepresentationChoice* choice = options.context.empty() ? nullptr : &chosen;
  if (options.trace) return trace(options, *model, *plan, *status, choice, console);

  targets::SceneTarget target(plan->discretization);
  DrawingReport report(*model, options);
  if (!drawModel(*model, options, *status, choice, target, report, console))
    return ExitCode::impossible;
  Scene scene = target.takeScene();
  arrangeAsTree(scene, *model->data, numbersOf(*model));
  const Drawn drawn{scene, *plan, titleOf(options)};
  for (const auto& output : options.outputs)
    if (!formatOf(output, console)->write(output, drawn, console)) return ExitCode::impossible;
  print(options, scene, report, console.out);
  return report.end(console.err);
}

}  // namespace qor::host::cli
