#include <gtest/gtest.h>

#include <map>

#include "Fc/Data.h"
#include "Fc/FcParams.h"
#include "Fc/Resource/GeometricModel/FcFacetedBrep.h"
#include "Fc/Resource/GeometricModel/FcPolygonalFaceSet.h"
#include "Fc/Resource/GeometricModel/FcTriangulatedFaceSet.h"
#include "Host/StepFile/StepReader.h"
#include "Tests/Fc/Geometry/DrawRecorder.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/SharedModels.h"
#include "Tests/Support/SolidMesh.h"

namespace qor::fc::resource::geometricmodel {
namespace {

using test::MaterialRecorder;
using test::SolidMesh;

class RealModelFaces : public testing::TestWithParam<std::filesystem::path> {
 protected:
  const std::shared_ptr<Data> data = host::step::readStepFile(GetParam()).data;
};

SolidMesh meshOf(const MaterialRecorder& target) {
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

TEST_P(RealModelFaces, FacetedBrepsAreClosedAndLookOutward) {
  ASSERT_TRUE(data);
  const test::ExpectAsserts noAsserts;
  int open = 0;
  for (const auto& brep : data->entities<FcFacetedBrep>()) {
    MaterialRecorder target;
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

TEST_P(RealModelFaces, TessellatedSetsDrawEachFaceThatTheyHold) {
  ASSERT_TRUE(data);
  const test::ExpectAsserts noAsserts;
  for (const auto& set : data->entities<FcTessellatedFaceSet>()) {
    MaterialRecorder target;
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

INSTANTIATE_TEST_SUITE_P(Models, RealModelFaces, testing::ValuesIn(test::sharedModels()),
                         test::modelTestName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealModelFaces);

}  // namespace
}  // namespace qor::fc::resource::geometricmodel
