#include "Host/Cli/MeasureCommand.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <ostream>

#include "Fc/FcParams.h"
#include "Host/Cli/DrawingReport.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/MeasureBodies.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Targets/SceneMeasure.h"
#include "Host/Targets/SceneTarget.h"

namespace qor::host::cli {

namespace {

using targets::MeshMeasure;
using targets::Scene;
using targets::SceneObject;

nlohmann::ordered_json jsonOf(const math::Point3d& point) { return {point.x, point.y, point.z}; }

nlohmann::ordered_json jsonOf(const SceneObject& object, const MeshMeasure& measure) {
  return {{"globalId", object.guid},
          {"class", object.className},
          {"name", object.name},
          {"min", jsonOf(measure.box.minimum())},
          {"max", jsonOf(measure.box.maximum())},
          {"area", measure.area},
          {"volume", measure.volume},
          {"triangles", measure.triangles},
          {"closed", measure.closed}};
}

std::string pointText(const math::Point3d& point) {
  return fmt::format("({:.3f} {:.3f} {:.3f})", point.x, point.y, point.z);
}

void printLine(const SceneObject& object, const MeshMeasure& measure, std::ostream& out) {
  out << fmt::format(
      "{} {} {}\n    from {} to {}, area {:.3f} m2, {}, {} triangles\n", object.guid,
      object.className, inQuotes(object.name), pointText(measure.box.minimum()),
      pointText(measure.box.maximum()), measure.area,
      measure.closed ? fmt::format("volume {:.3f} m3", measure.volume) : std::string("not closed"),
      measure.triangles);
}

}  // namespace

ExitCode runMeasure(const MeasureOptions& options, Console& console) {
  const auto discretization = discretizationOf(options, console);
  if (!discretization) return ExitCode::impossible;
  const auto model = loadModel(options.file, console);
  if (!model) return ExitCode::impossible;
  const fc::FcParams params(*discretization);
  if (options.surfaces) return measureSurfaces(*model, options, params, console);
  if (!options.distance.empty()) return measureDistance(*model, options, params, console);
  const auto status = readDrawStatus(*model->data, options.status, console);
  if (!status) return ExitCode::impossible;
  RepresentationChoice choice = options.context.empty() ? RepresentationChoice::bodies(*model->data)
                                                        : RepresentationChoice(options.context);
  targets::SceneTarget target(*discretization);
  DrawingReport report(*model, options);
  if (!drawModel(*model, options, *status, &choice, target, report, console))
    return ExitCode::impossible;
  const Scene scene = target.takeScene();

  nlohmann::ordered_json products = nlohmann::ordered_json::array();
  for (const SceneObject& object : scene.objects) {
    const MeshMeasure measure = targets::measureObject(scene, object);
    if (measure.triangles == 0) continue;
    if (options.json)
      products.push_back(jsonOf(object, measure));
    else
      printLine(object, measure, console.out);
  }
  if (options.json) {
    nlohmann::ordered_json json{{"file", options.file.string()}, {"products", std::move(products)}};
    if (options.why) json["why"] = report.why();
    console.out << toText(json);
  } else {
    report.printWhy(console.out);
  }
  return report.end(console.err);
}

}  // namespace qor::host::cli
