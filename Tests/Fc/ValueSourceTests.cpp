#include <gtest/gtest.h>

#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Tests/Fc/Tokens.h"
#include "Tests/Fc/Values.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using namespace test;

class ValueSourceTest : public testing::Test {
 protected:
  bool readInto(FcBase& entity, const char* attribute, TokenSource& source) {
    const AttributeInfo& info = *entity.classInfo().findAttribute(attribute);
    return info.type->read(info.of(entity), source);
  }
  std::string written(const FcBase& entity, const char* attribute) {
    const AttributeInfo& info = *entity.classInfo().findAttribute(attribute);
    TokenSink sink(m_entities);
    info.type->write(info.of(entity), sink);
    return sink.tokens();
  }

  const Entities m_entities = {make("IfcWall"), make("IfcPerson"), make("IfcCartesianPoint"),
                               make("IfcPropertySet")};
};

TEST_F(ValueSourceTest, ReadsWhatASinkWritesForEveryFamilyOfTypes) {
  struct Case {
    const char* entity;
    const char* attribute;
    const char* tokens;
    const char* text;  // of the attribute; null for references and nested lists of values
  };
  const Case cases[] = {
      {"IfcWall", "GlobalId", "'31yhqcRTPB9fdMRru_RNe1'", "31yhqcRTPB9fdMRru_RNe1"},
      {"IfcWall", "Name", "''", ""},
      {"IfcWall", "Name", "$", nullptr},
      {"IfcWall", "PredefinedType", ".SHEAR.", "SHEAR"},
      {"IfcTrimmedCurve", "MasterRepresentation", ".PARAMETER.", "PARAMETER"},
      {"IfcBuildingStorey", "Elevation", "0.1", "0.100000"},
      {"IfcQuantityLength", "LengthValue", "-2.5", "-2.500000"},
      {"IfcStairFlight", "NumberOfRisers", "5000000000", "5000000000"},
      {"IfcTaskTime", "IsCritical", ".F.", "false"},
      {"IfcTrimmedCurve", "SenseAgreement", ".T.", "true"},
      {"IfcMaterialLayer", "IsVentilated", ".U.", "unknown"},
      {"IfcRelInterferesElements", "ImpliedOrder", ".F.", "false"},
      {"IfcBlobTexture", "RasterCode", "x0100ff", nullptr},
      {"IfcPixelTexture", "Pixel", "( x01 x )", nullptr},
      {"IfcActor", "TheActor", "#2", nullptr},
      {"IfcWall", "ObjectPlacement", "$", nullptr},
      {"IfcRelAggregates", "RelatedObjects", "( #1 $ )", nullptr},
      {"IfcPerson", "MiddleNames", "( )", "()"},
      {"IfcPerson", "MiddleNames", "$", nullptr},
      {"IfcCartesianPoint", "Coordinates", "( 1. 2. )", "(1.000000, 2.000000, 0.000000)"},
      {"IfcStructuralLoadCase", "SelfWeightCoefficients", "( 1. 2. 3. )",
       "(1.000000, 2.000000, 3.000000)"},
      {"IfcTextureVertexList", "TexCoordsList", "( ( 0.1 -2. ) )", "((0.100000, -2.000000))"},
      {"IfcIndexedTriangleTextureMap", "TexCoordIndex", "( ( 1 2 3 ) )", "((1, 2, 3))"},
      {"IfcSite", "RefLatitude", "( 52 -3 )", "(52, -3)"},
      {"IfcPropertySingleValue", "NominalValue", "IFCLENGTHMEASURE( 2.5 )", "2.500000"},
      {"IfcPropertySingleValue", "NominalValue", "IFCBOOLEAN( .T. )", "true"},
      {"IfcPropertySingleValue", "NominalValue", "IFCCOMPLEXNUMBER( ( 1. 0. ) )", nullptr},
      {"IfcIndexedPolyCurve", "Segments", "( IFCARCINDEX( ( 1 2 3 ) ) IFCLINEINDEX( ( 3 4 ) ) )",
       nullptr},
      {"IfcTrimmedCurve", "Trim1", "( #3 IFCPARAMETERVALUE( 0.5 ) )", nullptr},
      {"IfcRelDefinesByProperties", "RelatingPropertyDefinition",
       "IFCPROPERTYSETDEFINITIONSET( ( #4 ) )", nullptr},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.entity) + "." + c.attribute + " " + c.tokens);
    const auto entity = make(c.entity);
    TokenSource source(c.tokens, m_entities);
    EXPECT_TRUE(readInto(*entity, c.attribute, source));
    EXPECT_TRUE(source.isAtEnd());
    EXPECT_EQ(source.rejections(), "");
    EXPECT_EQ(written(*entity, c.attribute), c.tokens);
    if (c.text) {
      EXPECT_EQ(entity->getAttributeAsString(c.attribute), c.text);
    }
  }
}

TEST_F(ValueSourceTest, LeavesOutWhatDoesNotFitSaysWhyAndReadsOn) {
  struct Case {
    const char* entity;
    const char* attribute;
    const char* tokens;
    const char* rejections;
    const char* left;
  };
  const Case cases[] = {
      // a kind that the attribute doesn't take
      {"IfcWall", "Name", "1.", "wrongKind", "$"},
      {"IfcWall", "Name", "( ( 'a' ) )", "wrongKind", "$"},
      {"IfcWall", "Name", "?", "wrongKind", "$"},
      {"IfcWall", "PredefinedType", "'SHEAR'", "wrongKind", "$"},
      {"IfcWall", "ObjectPlacement", "'#1'", "wrongKind", "$"},
      {"IfcBuildingStorey", "Elevation", "'1'", "wrongKind", "$"},
      {"IfcBuildingStorey", "Elevation", "IFCREAL( 1. )", "wrongKind", "$"},
      {"IfcQuantityLength", "LengthValue", "$", "wrongKind", "0."},
      {"IfcStairFlight", "NumberOfRisers", "1.", "wrongKind", "$"},
      {"IfcTaskTime", "IsCritical", "1", "wrongKind", "$"},
      {"IfcMaterialLayer", "IsVentilated", "'T'", "wrongKind", "$"},
      {"IfcBlobTexture", "RasterCode", "'00'", "wrongKind", "x"},
      {"IfcPerson", "MiddleNames", "'a'", "wrongKind", "$"},
      {"IfcCartesianPoint", "Coordinates", "1.", "wrongKind", "( )"},
      {"IfcPropertySingleValue", "NominalValue", "1.", "wrongKind", "$"},
      {"IfcPropertySingleValue", "NominalValue", "( )", "wrongKind", "$"},
      {"IfcPropertySingleValue", "NominalValue", "IFCLABEL( 1. )", "wrongKind", "$"},
      {"IfcPropertySingleValue", "NominalValue", "IFCLENGTHMEASURE( $ )", "wrongKind", "$"},
      // names that aren't there
      {"IfcWall", "PredefinedType", ".SOLIDWAL.", "unknownEnumerator SOLIDWAL", "$"},
      {"IfcTaskTime", "IsCritical", ".U.", "unknownEnumerator U", "$"},
      {"IfcMaterialLayer", "IsVentilated", ".X.", "unknownEnumerator X", "$"},
      {"IfcPropertySingleValue", "NominalValue", "IFCBAG( ( 1 ) )", "unknownType IFCBAG", "$"},
      {"IfcActor", "TheActor", "IFCPERSON( 'x' )", "unknownType IFCPERSON", "$"},
      // entities of another class, and references to nothing, which the source reports itself
      {"IfcWall", "ObjectPlacement", "#1", "wrongClass IFCWALL", "$"},
      {"IfcActor", "TheActor", "#1", "wrongClass IFCWALL", "$"},
      {"IfcWall", "ObjectPlacement", "#0", "", "$"},
      {"IfcActor", "TheActor", "#0", "", "$"},
      // what the member can't hold
      {"IfcBuildingStorey", "Elevation", "1.e999", "outOfRange", "$"},
      {"IfcStairFlight", "NumberOfRisers", "99999999999999999999", "outOfRange", "$"},
      {"IfcWall", "GlobalId", "'wall-1'", "outOfRange wall-1", "'0000000000000000000000'"},
      // counts of fixed tuples
      {"IfcStructuralLoadCase", "SelfWeightCoefficients", "( 1. 2. )", "wrongCount", "$"},
      {"IfcStructuralLoadCase", "SelfWeightCoefficients", "( 1. 2. 3. ( ) )", "wrongCount", "$"},
      {"IfcStructuralLoadCase", "SelfWeightCoefficients", "( 1. '2' 3. )", "wrongKind", "$"},
      {"IfcCartesianPoint", "Coordinates", "( 1. 2. 3. 4. )", "wrongCount", "( )"},
      {"IfcTextureVertex", "Coordinates", "( 1. )", "wrongCount", "( 0. 0. )"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.entity) + "." + c.attribute + " " + c.tokens);
    const auto entity = make(c.entity);
    TokenSource source(c.tokens, m_entities);
    EXPECT_FALSE(readInto(*entity, c.attribute, source));
    EXPECT_TRUE(source.isAtEnd());
    EXPECT_EQ(source.rejections(), c.rejections);
    EXPECT_EQ(written(*entity, c.attribute), c.left);
  }
}

TEST_F(ValueSourceTest, KeepsTheSoundElementsOfAList) {
  const std::array<const char*, 5> cases[] = {
      {"IfcPerson", "MiddleNames", "( 'a' 1. ? 'b' )", "wrongKind; wrongKind", "( 'a' 'b' )"},
      {"IfcRelAggregates", "RelatedObjects", "( #2 #0 #1 )", "wrongClass IFCPERSON", "( #1 )"},
      {"IfcTableRow", "RowCells", "( IFCLABEL( 1. ) IFCREAL( 1. ) )", "wrongKind",
       "( IFCREAL( 1. ) )"},
      {"IfcIndexedPolyCurve", "Segments", "( IFCARCINDEX( ( 1 2 ) ) )", "wrongCount", "( )"},
      {"IfcStructuralLoadConfiguration", "Locations", "( ( 1. 'x' ) 2. )", "wrongKind; wrongKind",
       "( ( 1. ) )"},
  };
  for (const auto& [ifcName, attribute, tokens, rejections, kept] : cases) {
    const auto entity = make(ifcName);
    TokenSource source(tokens, m_entities);
    EXPECT_TRUE(readInto(*entity, attribute, source)) << tokens;
    EXPECT_TRUE(source.isAtEnd()) << tokens;
    EXPECT_EQ(source.rejections(), rejections);
    EXPECT_EQ(written(*entity, attribute), kept);
  }
}

TEST_F(ValueSourceTest, TakesAWholeNumberWhereARealBelongs) {
  const auto storey = make("IfcBuildingStorey");
  TokenSource source("3", {});
  EXPECT_TRUE(readInto(*storey, "Elevation", source));
  EXPECT_EQ(written(*storey, "Elevation"), "3.");
}

TEST_F(ValueSourceTest, EmptiesAnAttributeWhereNoValueStands) {
  const std::array<const char*, 3> filled[] = {{"IfcWall", "Name", "'old'"},
                                               {"IfcPersonAndOrganization", "ThePerson", "#2"},
                                               {"IfcActor", "TheActor", "#2"},
                                               {"IfcPerson", "MiddleNames", "( 'old' )"}};
  for (const auto& [ifcName, attribute, old] : filled)
    for (const char* absent : {"$", "*"}) {
      const auto entity = make(ifcName);
      TokenSource source(std::string(old) + " " + absent, m_entities);
      EXPECT_TRUE(readInto(*entity, attribute, source)) << attribute;
      EXPECT_TRUE(readInto(*entity, attribute, source)) << attribute;
      EXPECT_TRUE(source.isAtEnd());
      EXPECT_EQ(written(*entity, attribute), "$") << attribute;
    }
}

}  // namespace
}  // namespace qor::fc
