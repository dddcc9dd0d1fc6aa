// Each product of a real model that has a body is drawn, and what openings cut stays closed.

#include <gtest/gtest.h>

#include <map>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcFeatureElementSubtraction.h"
#include "Fc/Resource/GeometricConstraint/FcGridPlacement.h"
#include "Fc/Resource/GeometricModel/FcSurfaceCurveSweptAreaSolid.h"
#include "Fc/Resource/Geometry/FcMappedItem.h"
#include "Fc/Resource/Geometry/FcPoint.h"
#include "Fc/Resource/Geometry/FcRepresentationMap.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"
#include "Host/Cli/RepresentationChoice.h"
#include "Host/StepFile/StepReader.h"
#include "Tests/Host/Cli/RunTool.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {
namespace {

using fc::core::kernel::FcProduct;
using fc::core::productextension::FcElement;
using host::cli::RepresentationChoice;

/// By id, whether the mesh of each product is closed.
using ClosedById = std::map<std::string, bool>;

ClosedById measure(const std::string& file, std::vector<std::string> options) {
  options.insert(options.begin(), {"measure", file, "--json"});
  const ToolRun run = runTool(options);
  ClosedById result;
  if (run.code == host::cli::ExitCode::impossible) return result;
  const nlohmann::json all = run.json();
  for (const auto& product : all["products"]) result[product["globalId"]] = product["closed"];
  return result;
}

bool hasBody(const FcProduct& product, const RepresentationChoice& bodies) {
  if (!product.Representation()) return false;
  for (const auto& representation : product.Representation()->Representations())
    if (representation && bodies.accepts(*representation) && !representation->Items().empty())
      return true;
  return false;
}

/// There is a point in it, or a solid of a class that draws nothing.
bool holdsNothingToDraw(const fc::resource::representation::FcRepresentation& representation) {
  for (const auto& item : representation.Items()) {
    if (fc::fcCast<fc::resource::geometry::FcPoint>(item) ||
        fc::fcCast<fc::resource::geometricmodel::FcSurfaceCurveSweptAreaSolid>(item))
      return true;
    const auto map = fc::fcCast<fc::resource::geometry::FcMappedItem>(item);
    if (map && map->MappingSource() && map->MappingSource()->MappedRepresentation() &&
        holdsNothingToDraw(*map->MappingSource()->MappedRepresentation()))
      return true;
  }
  return false;
}

bool holdsNothingToDraw(const FcProduct& product) {
  for (const auto& representation : product.Representation()->Representations())
    if (representation && holdsNothingToDraw(*representation)) return true;
  return false;
}

/// Openings are what is taken away, and no place is computed on a grid.
bool isLeftOut(const FcProduct& product) {
  return holdsNothingToDraw(product) ||
         fc::fcCast<fc::core::productextension::FcFeatureElementSubtraction>(&product) ||
         fc::fcCast<fc::resource::geometricconstraint::FcGridPlacement>(
             product.ObjectPlacement().get());
}

class DrawnBodies : public ModelTest {};

TEST_P(DrawnBodies, AreAllOfTheFileAndStayClosedWhereOpeningsCut) {
  const host::step::ReadResult model = host::step::readStepFile(GetParam());
  const auto cut = measure(GetParam().string(), {});
  const auto uncut = measure(GetParam().string(), {"--no-openings"});
  const RepresentationChoice bodies = RepresentationChoice::bodies(*model.data);
  for (const std::shared_ptr<FcProduct> product : model.data->entities<FcProduct>()) {
    if (!hasBody(*product, bodies) || isLeftOut(*product)) continue;
    const std::string guid = product->GlobalId().toString(false);
    EXPECT_TRUE(cut.contains(guid)) << guid << " " << product->ifcNameUpper();
    const auto* element = fc::fcCast<FcElement>(product.get());
    if (!element || element->HasOpenings().empty() || !cut.contains(guid)) continue;
    EXPECT_TRUE(cut.at(guid) || !uncut.at(guid)) << guid << " " << product->ifcNameUpper();
  }
}

FC_INSTANTIATE_FOR_MODELS(DrawnBodies, sharedModels());

}  // namespace
}  // namespace qor::test
