#include "Host/Cli/MeasureBodies.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Host/Cli/EntityLabel.h"
#include "Host/Cli/EntityOption.h"
#include "Host/Cli/LoadModel.h"
#include "Host/Cli/PrintableText.h"
#include "Host/Cli/ProcessorScope.h"
#include "Host/Cli/Watch.h"

namespace qor::host::cli {
namespace {

using fc::core::kernel::FcProduct;

nlohmann::ordered_json jsonOf(const std::vector<math::Polygon3d>& surfaces) {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  for (const math::Polygon3d& surface : surfaces) {
    nlohmann::ordered_json points = nlohmann::ordered_json::array();
    for (const math::Point3d& point : surface.points())
      points.push_back({point.x, point.y, point.z});
    all.push_back(std::move(points));
  }
  return all;
}

void printSurfaces(const FcProduct& product, const std::vector<math::Polygon3d>& surfaces,
                   std::ostream& out) {
  out << fmt::format("{} {} {}\n", product.GlobalId().toString(false), product.ifcNameUpper(),
                     inQuotes(product.Name().value_or("")));
  for (const math::Polygon3d& surface : surfaces) {
    out << "   ";
    for (const math::Point3d& point : surface.points())
      out << fmt::format(" ({:.3f} {:.3f} {:.3f})", point.x, point.y, point.z);
    out << "\n";
  }
}

}  // namespace

ExitCode measureSurfaces(const step::ReadResult& model, const MeasureOptions& options,
                         const fc::FcParams& params, Console& console) {
  const ProcessorScope processor;
  const Watch::Walk walk(console.watch, model);
  nlohmann::ordered_json products = nlohmann::ordered_json::array();
  for (const std::shared_ptr<FcProduct> product : model.data->entities<FcProduct>()) {
    console.watch.at(product->GlobalId());
    const auto surfaces = product->getBodySurfaces(params);
    if (surfaces.empty()) continue;
    if (options.json)
      products.push_back({{"globalId", product->GlobalId().toString(false)},
                          {"class", product->ifcNameUpper()},
                          {"name", product->Name().value_or("")},
                          {"surfaces", jsonOf(surfaces)}});
    else
      printSurfaces(*product, surfaces, console.out);
  }
  if (options.json)
    console.out << toText({{"file", options.file.string()}, {"products", std::move(products)}});
  return exitCodeOf(model);
}

ExitCode measureDistance(const step::ReadResult& model, const MeasureOptions& options,
                         const fc::FcParams& params, Console& console) {
  const std::string file = options.file.string();
  const auto first = findProduct(model, options.distance.front(), file, console);
  const auto second = first ? findProduct(model, options.distance.back(), file, console) : first;
  if (!first || !second) return ExitCode::impossible;
  const ProcessorScope processor;
  const Watch::Walk walk(console.watch, model);
  console.watch.at(first->GlobalId());
  const auto distance = first->getDistanceToOtherProduct(params, *second);
  if (options.json) {
    nlohmann::ordered_json value;
    if (distance) value = *distance;
    console.out << toText({{"file", options.file.string()}, {"distance", std::move(value)}});
  } else {
    console.out << (distance ? fmt::format("{:.6f} m\n", *distance)
                             : std::string("one of the two has no body\n"));
  }
  return exitCodeOf(model);
}

}  // namespace qor::host::cli
