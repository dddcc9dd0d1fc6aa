#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <optional>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Document/Document.h"
#include "Fc/Document/FcDrawInterfaceWrapper.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "Fc/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "Fc/Resource/GeometricModel/FcFacetedBrep.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Fc/Resource/Geometry/FcAxis2Placement2D.h"
#include "Fc/Resource/Geometry/FcCurve.h"
#include "Items.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/RealModel.h"
#include "Tests/Support/RecordingTarget.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometry {
namespace {

using core::kernel::FcProduct;
using namespace geometricconstraint;
using namespace geometricmodel;
using math::Matrix;
using math::Point3d;
using math::Vector3d;
using test::DrawRecorder;
using test::SolidMesh;

// Frames computed once more, from the numbers of the file alone.

Vector3d unit(const Vector3d& v) { return v * (1 / std::sqrt(v.dot(v))); }

Vector3d ratios(const std::shared_ptr<FcDirection>& direction, const Vector3d& otherwise) {
  if (!direction) return otherwise;
  const auto& r = direction->DirectionRatios();
  return {double(r[0]), double(r[1]), double(r[2])};
}

Matrix frameOf(const FcAxis2Placement& select) {
  const auto* spatial = fcCast<FcAxis2Placement3D>(select.getEntity());
  const auto* planar = fcCast<FcAxis2Placement2D>(select.getEntity());
  if (!spatial && !planar) return {};
  const auto& at =
      fcCast<FcCartesianPoint>(spatial ? spatial->Location() : planar->Location())->Coordinates();
  const Vector3d z = unit(ratios(spatial ? spatial->Axis() : nullptr, {0, 0, 1}));
  const Vector3d r = ratios(spatial ? spatial->RefDirection() : planar->RefDirection(), {1, 0, 0});
  const Vector3d x = unit(r - z * r.dot(z));
  return {x, z.cross(x), z, Point3d(at[0], at[1], at[2])};
}

/// Empty when not all of the chain have a frame in their numbers.
std::optional<Matrix> absoluteFrame(const FcObjectPlacement* placement) {
  Matrix frame;
  for (; placement; placement = placement->PlacementRelTo().get()) {
    const auto* linear = fcCast<FcLinearPlacement>(placement);
    const auto* local = fcCast<FcLocalPlacement>(placement);
    if (!local && !(linear && linear->CartesianPosition())) return {};
    frame = frame * frameOf(local ? local->RelativePlacement()
                                  : FcAxis2Placement(linear->CartesianPosition()));
  }
  return frame;
}

SolidMesh meshOf(const DrawRecorder& target) {
  SolidMesh mesh(1e-6);
  for (const auto& set : target.polygonalSets) mesh.add(set.what);
  for (const auto& set : target.triangulatedSets)
    for (const auto& triangle : set.what.triangles)
      mesh.addTriangle(set.what.coordinates().at(triangle[0]),
                       set.what.coordinates().at(triangle[1]),
                       set.what.coordinates().at(triangle[2]));
  return mesh;
}

// Bodies whose faces don't close in the file itself.
const std::map<std::string, int> openInTheFile{
    {"AC20-FZK-Haus.ifc", 1},      // four faces meet at one edge
    {"Ifc4_SampleHouse.ifc", 1}};  // the front of a roof twice, once within the body

using RealModelGeometry = test::RealModelTest;

TEST_P(RealModelGeometry, OpensEachProductWhereItsNumbersSayWithinTheFrameOfTheTarget) {
  const Matrix outer = Matrix::createZRotate(0.3) * Matrix::createTranslation({5, -7, 2});
  DrawStatus status;
  for (const std::shared_ptr<FcProduct> product : data->entities<FcProduct>())
    status.setEnabled(product.get(), false);
  test::RecordingTarget target;
  target.vTransformationSet(outer);
  FcDrawInterfaceWrapper wrapper(target);
  const document::Document objects(data);
  FcGenerateParams params(wrapper, objects, status, *data, nullptr, nullptr, nullptr);
  std::size_t opened = 0;
  params.disabledProductCallback = [&](FcGenerateParams&, const FcProduct& product) {
    ++opened;
    const auto expected = absoluteFrame(product.ObjectPlacement().get());
    if (!expected) return;
    EXPECT_LT(deviation(target.transformationGet(), *expected * outer), 1e-9)
        << product.ifcName() << ' ' << product.GlobalId().toString(false);
  };
  const auto products = data->entities<FcProduct>();
  for (const std::shared_ptr<FcProduct> product : products) product->generate(params);
  EXPECT_EQ(opened, products.size());
}

TEST_P(RealModelGeometry, AnswersForEachCurve) {
  for (const std::shared_ptr<FcCurve> curve : data->entities<FcCurve>()) {
    const auto points = curve->curveGet(params, {}, {}, false);
    for (const Point3d& point : points)
      EXPECT_TRUE(std::isfinite(point.x + point.y + point.z)) << curve->ifcName();
    if (points.empty() || !curve->is2d()) continue;
    const auto planar = curve->curve2d(params, {}, {}, false);
    Points2d flat;
    for (const Point3d& point : points) flat.emplace_back(point.x, point.y);
    EXPECT_LT(deviation(planar.value_or(Points2d()), flat), 1e-9) << curve->ifcName();
  }
}

TEST_P(RealModelGeometry, FacetedBrepsAreClosedAndLookOutward) {
  const test::ExpectAsserts noAsserts;
  int open = 0;
  for (const auto& brep : data->entities<FcFacetedBrep>()) {
    DrawRecorder target;
    target.draw(*brep);
    const SolidMesh mesh = meshOf(target);
    if (!mesh.problem().empty())
      ++open;
    else
      EXPECT_GT(mesh.volume(), 0);
  }
  const auto known = openInTheFile.find(GetParam().filename().string());
  EXPECT_EQ(open, known == openInTheFile.end() ? 0 : known->second);
}

TEST_P(RealModelGeometry, TessellatedSetsDrawEachFaceThatTheyHold) {
  const test::ExpectAsserts noAsserts;
  for (const auto& set : data->entities<FcTessellatedFaceSet>()) {
    DrawRecorder target;
    target.draw(*set);
    std::size_t drawn = 0;
    for (const auto& part : target.polygonalSets) drawn += part.what.faces.size();
    for (const auto& part : target.triangulatedSets) drawn += part.what.triangles.size();
    const auto polygonal = fcCast<FcPolygonalFaceSet>(set);
    const auto triangulated = fcCast<FcTriangulatedFaceSet>(set);
    EXPECT_EQ(drawn, polygonal ? polygonal->Faces().size() : triangulated->numberOfFaces());
    if (polygonal ? polygonal->Closed().value_or(false) : triangulated->Closed().value_or(false)) {
      EXPECT_EQ(meshOf(target).problem(), "");
    }
  }
}

FC_INSTANTIATE_FOR_MODELS(RealModelGeometry, test::allModels());

}  // namespace
}  // namespace qor::fc::resource::geometry
