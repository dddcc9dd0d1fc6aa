#include "Host/StepFile/OlderSchemas.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Fc/Factory.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Host/StepFile/OlderSchemas.h"
#include "Host/StepFile/SchemaMap.h"
#include "Host/StepFile/StepWriter.h"
#include "Tests/Host/StepText.h"

namespace qor::host::step {
namespace {

/// The instance with that number as it is written.
std::string written(const ReadResult& result, std::uint64_t number) {
  std::string text;
  writeStep(*result.data, text, {.header = result.header, .numbers = result.instances});
  const std::string start = "\n#" + std::to_string(number) + "=";
  const std::size_t begin = text.find(start);
  if (begin == std::string::npos) return "nothing";
  return text.substr(begin + start.size(), text.find(";\n", begin) - begin - start.size());
}

constexpr SchemaVersion olderVersions[] = {
    SchemaVersion::ifc2x,  SchemaVersion::ifc2x3,          SchemaVersion::ifc4,
    SchemaVersion::ifc4x1, SchemaVersion::ifc4x3Candidate, SchemaVersion::ifc4x3};

bool isIn(std::uint8_t versions, SchemaVersion version) {
  return (versions & static_cast<std::uint8_t>(version)) != 0;
}

TEST(OlderSchemas, TheTableNamesOnlyWhatTheModelHas) {
  for (const SchemaVersion version : olderVersions) {
    SchemaMap map(version);
    for (const OlderClass& row : olderClasses()) {
      if (!isIn(row.versions, version)) continue;
      SCOPED_TRACE(row.upperName);
      std::optional<std::size_t> position = map.find(row.upperName);
      ASSERT_TRUE(position);
      while (map[*position].older != &row) {
        ASSERT_TRUE(map[*position].older && map[*position].older->when);
        ++*position;
      }
      const FileClass& fileClass = map[*position];
      if (row.becomes == unwrapped || row.becomes == withoutPlace) {
        EXPECT_FALSE(fileClass.info);
        continue;
      }
      ASSERT_TRUE(fileClass.info);
      EXPECT_EQ(fileClass.info->name.view(), row.becomes);
      EXPECT_FALSE(fileClass.info->isAbstract()) << row.becomes;
      for (const FileAttribute& attribute : fileClass.attributes) {
        const bool hasPlace = attribute.attribute || attribute.list || attribute.derived ||
                              attribute.conversion == Conversion::keep;
        EXPECT_TRUE(
            hasPlace ||
            row.attributes.find("-" + std::string(attribute.name)) != std::string_view::npos ||
            fileClass.info->findAttribute(attribute.name)->typeName == "IfcStrippedOptional")
            << attribute.name;
      }
      for (const auto& [attribute, value] : fileClass.fixed) EXPECT_TRUE(attribute);
    }
  }
}

TEST(OlderSchemas, EnumeratorsBecomeSuchOfTheModel) {
  for (const OlderEnumerator& row : olderEnumerators()) {
    const fc::EnumInfo* enumeration = nullptr;
    for (const fc::ClassInfo* info : fc::Factory::classes())
      for (const fc::AttributeInfo& attribute : info->attributes)
        if (attribute.typeName == row.enumeration) enumeration = attribute.type->enumeration;
    ASSERT_TRUE(enumeration) << row.enumeration;
    EXPECT_FALSE(enumeration->find(row.name)) << row.enumeration << " " << row.name;
    EXPECT_TRUE(row.becomes.empty() || enumeration->find(row.becomes)) << row.becomes;
  }
}

/// All that entities of IFC2X3 inherit from, as that schema has it.
const std::map<std::string, std::string, std::less<>> bases = {
    {"Root", "GlobalId OwnerHistory Name Description"},
    {"Object", "Root ObjectType"},
    {"Product", "Object ObjectPlacement Representation"},
    {"Element", "Product Tag"},
    {"TypeProduct", "Root ApplicableOccurrence HasPropertySets RepresentationMaps Tag"},
    {"Spatial", "Product LongName CompositionType"},
    {"Parameterized", "ProfileType ProfileName Position"},
    {"SweptArea", "SweptArea_ Position"},
    {"Constraint",
     "Name Description ConstraintGrade ConstraintSource CreatingActor CreationTime "
     "UserDefinedGrade"},
    {"TimeSeries",
     "Name Description StartTime EndTime TimeSeriesDataType DataOrigin UserDefinedDataOrigin Unit"},
    {"Resource", "Object ResourceIdentifier ResourceGroup ResourceConsumption BaseQuantity"},
    {"Activity", "Product AppliedLoad GlobalOrLocal"},
    {"CoordinateOperation", "SourceCRS TargetCRS"},
    {"GeneralProfile",
     "ProfileName ProfileDefinition PhysicalWeight Perimeter MinimumPlateThickness "
     "MaximumPlateThickness CrossSectionArea"},
    {"Work",
     "Object Identifier CreationDate Creators Purpose Duration TotalFloat StartTime FinishTime "
     "WorkControlType UserDefinedControlType"},
    {"Task", "Object TaskId Status WorkMethod IsMilestone Priority"},
    {"Texture", "RepeatS RepeatT TextureType TextureTransform"},
    {"AppliedValue", "Name Description AppliedValue UnitBasis ApplicableDate FixedUntilDate"},
};

std::vector<std::string> namesOf(const std::string& items) {
  std::vector<std::string> names;
  std::istringstream words(items);
  for (std::string word; words >> word;) {
    const auto base = bases.find(word);
    const bool isFirst = names.empty() && base != bases.end();
    const std::vector<std::string> inherited =
        isFirst ? namesOf(base->second) : std::vector{word == "SweptArea_" ? "SweptArea" : word};
    names.insert(names.end(), inherited.begin(), inherited.end());
  }
  return names;
}

/// The attributes of the classes of the table as the older schemas list them. Each stands in its
/// place: there are as many, and those that the model has by the same name are those.
TEST(OlderSchemas, TheTableHasTheAttributesOfThoseSchemasInTheirOrder) {
  const struct {
    SchemaVersion version;
    const char* upperName;
    const char* attributes;
  } lists[] = {
      {SchemaVersion::ifc2x3, "IFCPROXY", "Product ProxyType Tag"},
      {SchemaVersion::ifc2x3, "IFCCHAMFEREDGEFEATURE", "Element FeatureLength Width Height"},
      {SchemaVersion::ifc2x3, "IFCROUNDEDEDGEFEATURE", "Element FeatureLength Radius"},
      {SchemaVersion::ifc2x3, "IFCELECTRICDISTRIBUTIONPOINT",
       "Element DistributionPointFunction UserDefinedFunction"},
      {SchemaVersion::ifc2x3, "IFCTRANSPORTELEMENT",
       "Element OperationType CapacityByWeight CapacityByNumber"},
      {SchemaVersion::ifc2x3, "IFCDOORSTYLE",
       "TypeProduct OperationType ConstructionType ParameterTakesPrecedence Sizeable"},
      {SchemaVersion::ifc4, "IFCWINDOWSTYLE",
       "TypeProduct ConstructionType OperationType ParameterTakesPrecedence Sizeable"},
      {SchemaVersion::ifc2x3, "IFCTASK", "Task"},
      {SchemaVersion::ifc2x3, "IFCMOVE", "Task MoveFrom MoveTo PunchList"},
      {SchemaVersion::ifc2x3, "IFCORDERACTION", "Task ActionID"},
      {SchemaVersion::ifc2x3, "IFCPROCEDURE",
       "Object ProcedureID ProcedureType UserDefinedProcedureType"},
      {SchemaVersion::ifc2x3, "IFCWORKPLAN", "Work"},
      {SchemaVersion::ifc2x3, "IFCCOSTSCHEDULE",
       "Object SubmittedBy PreparedBy SubmittedOn Status TargetUsers UpdateDate ID "
       "PredefinedType"},
      {SchemaVersion::ifc2x3, "IFCCREWRESOURCE", "Resource"},
      {SchemaVersion::ifc2x3, "IFCLABORRESOURCE", "Resource SkillSet"},
      {SchemaVersion::ifc2x3, "IFCSUBCONTRACTRESOURCE", "Resource SubContractor JobDescription"},
      {SchemaVersion::ifc2x3, "IFCCONSTRUCTIONMATERIALRESOURCE", "Resource Suppliers UsageRatio"},
      {SchemaVersion::ifc2x3, "IFCRELSEQUENCE",
       "Root RelatingProcess RelatedProcess TimeLag SequenceType"},
      {SchemaVersion::ifc2x3, "IFCBEZIERCURVE",
       "Degree ControlPointsList CurveForm ClosedCurve SelfIntersect"},
      {SchemaVersion::ifc2x3, "IFCRATIONALBEZIERCURVE",
       "Degree ControlPointsList CurveForm ClosedCurve SelfIntersect WeightsData"},
      {SchemaVersion::ifc2x3, "IFCREPRESENTATIONCONTEXT", "ContextIdentifier ContextType"},
      {SchemaVersion::ifc4, "IFCTRIANGULATEDFACESET",
       "Coordinates Normals Closed CoordIndex NormalIndex"},
      {SchemaVersion::ifc2x3, "IFCCRANERAILASHAPEPROFILEDEF",
       "Parameterized OverallHeight BaseWidth2 Radius HeadWidth HeadDepth2 HeadDepth3 WebThickness "
       "BaseWidth4 BaseDepth1 BaseDepth2 BaseDepth3 CentreOfGravityInY"},
      {SchemaVersion::ifc2x3, "IFCCRANERAILFSHAPEPROFILEDEF",
       "Parameterized OverallHeight HeadWidth Radius HeadDepth2 HeadDepth3 WebThickness BaseDepth1 "
       "BaseDepth2 CentreOfGravityInY"},
      {SchemaVersion::ifc2x3, "IFCLSHAPEPROFILEDEF",
       "Parameterized Depth Width Thickness FilletRadius EdgeRadius LegSlope CentreOfGravityInX "
       "CentreOfGravityInY"},
      {SchemaVersion::ifc2x3, "IFCCSHAPEPROFILEDEF",
       "Parameterized Depth Width WallThickness Girth InternalFilletRadius CentreOfGravityInX"},
      {SchemaVersion::ifc2x3, "IFCTSHAPEPROFILEDEF",
       "Parameterized Depth FlangeWidth WebThickness FlangeThickness FilletRadius FlangeEdgeRadius "
       "WebEdgeRadius WebSlope FlangeSlope CentreOfGravityInY"},
      {SchemaVersion::ifc2x3, "IFCUSHAPEPROFILEDEF",
       "Parameterized Depth FlangeWidth WebThickness FlangeThickness FilletRadius EdgeRadius "
       "FlangeSlope CentreOfGravityInX"},
      {SchemaVersion::ifc2x3, "IFCGENERALPROFILEPROPERTIES", "GeneralProfile"},
      {SchemaVersion::ifc2x3, "IFCSTRUCTURALPROFILEPROPERTIES",
       "GeneralProfile TorsionalConstantX MomentOfInertiaYZ MomentOfInertiaY MomentOfInertiaZ "
       "WarpingConstant ShearCentreZ ShearCentreY ShearDeformationAreaZ ShearDeformationAreaY "
       "MaximumSectionModulusY MinimumSectionModulusY MaximumSectionModulusZ "
       "MinimumSectionModulusZ TorsionalSectionModulus CentreOfGravityInX CentreOfGravityInY"},
      {SchemaVersion::ifc2x3, "IFCIMAGETEXTURE", "Texture UrlReference"},
      {SchemaVersion::ifc2x3, "IFCBLOBTEXTURE", "Texture RasterFormat RasterCode"},
      {SchemaVersion::ifc2x3, "IFCSTRUCTURALPOINTACTION", "Activity DestabilizingLoad CausedBy"},
      {SchemaVersion::ifc2x3, "IFCSTRUCTURALLINEARACTION",
       "Activity DestabilizingLoad CausedBy ProjectedOrTrue"},
      {SchemaVersion::ifc2x3, "IFCBOUNDARYNODECONDITIONWARPING",
       "Name LinearStiffnessX LinearStiffnessY LinearStiffnessZ RotationalStiffnessX "
       "RotationalStiffnessY RotationalStiffnessZ WarpingStiffness"},
      {SchemaVersion::ifc2x3, "IFCAPPROVAL",
       "Description ApprovalDateTime ApprovalStatus ApprovalLevel ApprovalQualifier Name "
       "Identifier"},
      {SchemaVersion::ifc2x3, "IFCAPPROVALRELATIONSHIP",
       "RelatedApproval RelatingApproval Description Name"},
      {SchemaVersion::ifc2x3, "IFCAPPROVALPROPERTYRELATIONSHIP", "ApprovedProperties Approval"},
      {SchemaVersion::ifc2x3, "IFCDOCUMENTINFORMATIONRELATIONSHIP",
       "RelatingDocument RelatedDocuments RelationshipType"},
      {SchemaVersion::ifc2x3, "IFCPROPERTYDEPENDENCYRELATIONSHIP",
       "DependingProperty DependantProperty Name Description Expression"},
      {SchemaVersion::ifc2x3, "IFCMETRIC", "Constraint Benchmark ValueSource DataValue"},
      {SchemaVersion::ifc2x3, "IFCOBJECTIVE",
       "Constraint BenchmarkValues ResultValues ObjectiveQualifier UserDefinedQualifier"},
      {SchemaVersion::ifc2x3, "IFCCOSTVALUE", "AppliedValue CostType Condition"},
      {SchemaVersion::ifc2x3, "IFCENVIRONMENTALIMPACTVALUE",
       "AppliedValue ImpactType EnvCategory UserDefinedCategory"},
      {SchemaVersion::ifc2x3, "IFCASSET",
       "Object AssetID OriginalValue CurrentValue TotalReplacementCost Owner User "
       "ResponsiblePerson IncorporationDate DepreciatedValue"},
      {SchemaVersion::ifc2x3, "IFCINVENTORY",
       "Object InventoryType Jurisdiction ResponsiblePersons LastUpdateDate CurrentValue "
       "OriginalValue"},
      {SchemaVersion::ifc2x3, "IFCREGULARTIMESERIES", "TimeSeries TimeStep Values"},
      {SchemaVersion::ifc2x3, "IFCIRREGULARTIMESERIES", "TimeSeries Values"},
      {SchemaVersion::ifc2x3, "IFCCLASSIFICATION", "Source Edition EditionDate Name"},
      {SchemaVersion::ifc2x3, "IFCDOCUMENTINFORMATION",
       "DocumentId Name Description DocumentReferences Purpose IntendedUse Scope Revision "
       "DocumentOwner Editors CreationTime LastRevisionTime ElectronicFormat ValidFrom ValidUntil "
       "Confidentiality Status"},
      {SchemaVersion::ifc2x3, "IFCLIBRARYINFORMATION",
       "Name Version Publisher VersionDate LibraryReference"},
      {SchemaVersion::ifc4x1, "IFCALIGNMENT", "Product Axis PredefinedType"},
      {SchemaVersion::ifc4x1, "IFCREFERENT", "Product PredefinedType RestartDistance"},
      {SchemaVersion::ifc4x1, "IFCBRIDGEPART", "Spatial PredefinedType"},
      {SchemaVersion::ifc4x3, "IFCFACILITYPART", "Spatial PartType UsageType"},
      {SchemaVersion::ifc4x3, "IFCMAPCONVERSION",
       "CoordinateOperation Eastings Northings OrthogonalHeight XAxisAbscissa XAxisOrdinate Scale "
       "ScaleY ScaleZ"},
      {SchemaVersion::ifc4x3, "IFCSECTIONEDSOLIDHORIZONTAL",
       "Directrix CrossSections CrossSectionPositions FixedAxisVertical"},
  };
  for (const auto& list : lists) {
    SCOPED_TRACE(list.upperName);
    SchemaMap map(list.version);
    const auto position = map.find(list.upperName);
    ASSERT_TRUE(position);
    const FileClass& fileClass = map[*position];
    const std::vector<std::string> names = namesOf(list.attributes);
    ASSERT_EQ(fileClass.attributes.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (!fileClass.info->findAttribute(names[i])) continue;
      EXPECT_EQ(fileClass.attributes[i].name, names[i]);
    }
  }
}

TEST(OlderSchemas, AreKnownByTheNamesThatFilesGiveThem) {
  const std::pair<const char*, SchemaVersion> names[] = {
      {"IFC2X_FINAL", SchemaVersion::ifc2x},  {"IFC2X2_FINAL", SchemaVersion::ifc2x},
      {"IFC2X3", SchemaVersion::ifc2x3},      {"IFC2X3_TC1", SchemaVersion::ifc2x3},
      {"IFC4", SchemaVersion::ifc4},          {"IFC4X1", SchemaVersion::ifc4x1},
      {"IFC4X2", SchemaVersion::ifc4x1},      {"IFC4X3_RC2", SchemaVersion::ifc4x3Candidate},
      {"IFC4X3", SchemaVersion::ifc4x3},      {"IFC4X3_TC1", SchemaVersion::ifc4x3},
      {"IFC4X3_ADD1", SchemaVersion::ifc4x3}, {"ifc4x3_add2", SchemaVersion::ifc4x3Add2},
  };
  for (const auto& [name, version] : names) EXPECT_EQ(schemaVersionFromName(name), version) << name;
  EXPECT_EQ(schemaVersionFromName("CONFIG_CONTROL_DESIGN"), std::nullopt);
}

struct Older {
  const char* schema;
  std::string before;
  std::string after;
  std::string losses;
};

TEST(OlderSchemas, BecomeTheModelWithEveryLossTold) {
  const Older table[] = {
      {"IFC2X3",
       "#2=IFCDOORSTYLE('2Sa3dTJGn0H8TQIGiuGQd5',$,'d',$,$,$,$,'t',.SINGLE_SWING_LEFT.,.WOOD.,.F.,$"
       ");",
       "IFCDOORTYPE('2Sa3dTJGn0H8TQIGiuGQd5',$,'d',$,$,$,$,'t',$,.NOTDEFINED.,.SINGLE_SWING_LEFT.,."
       "F.,$)",
       "note: #2 IFCDOORSTYLE, line 4: attribute 10 (ConstructionType) is .WOOD.; the model has no "
       "place for it: left out.\n"},
      {"IFC4", "#2=IFCSLABSTANDARDCASE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.FLOOR.);",
       "IFCSLAB('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.FLOOR.)", ""},
      {"IFC2X3", "#2=IFCMONETARYUNIT(.EUR.);", "IFCMONETARYUNIT('EUR')", ""},
      {"IFC4", "#2=IFCQUANTITYCOUNT('n',$,$,3.,$);", "IFCQUANTITYCOUNT('n',$,$,3,$)", ""},
      {"IFC4", "#2=IFCQUANTITYCOUNT('n',$,$,3.5,$);", "IFCQUANTITYCOUNT('n',$,$,0,$)",
       "#2 IFCQUANTITYCOUNT, line 4: attribute 4 (CountValue) is 3.5, which is no "
       "IfcCountMeasure; left out.\n"},
      {"IFC2X3", "#2=IFCPROPERTYSINGLEVALUE('n',$,IFCCOUNTMEASURE(3.),$);",
       "IFCPROPERTYSINGLEVALUE('n',$,IFCCOUNTMEASURE(3),$)", ""},
      {"IFC4", "#2=IFCSURFACECURVESWEPTAREASOLID($,$,$,0.,IFCPARAMETERVALUE(1.5),$);",
       "IFCSURFACECURVESWEPTAREASOLID($,$,$,IFCPARAMETERVALUE(0.),IFCPARAMETERVALUE(1.5),$)", ""},
      {"IFC4", "#2=IFCGRIDPLACEMENT($,$);", "IFCGRIDPLACEMENT($,$,$)", ""},
      {"IFC2X3",
       "#2=IFCSTYLEDITEM($,(#3,#4),'s');\n#3=IFCPRESENTATIONSTYLEASSIGNMENT((#5,IFCNULLSTYLE(.NULL."
       ")));\n"
       "#4=IFCPRESENTATIONSTYLEASSIGNMENT(( ));\n#5=IFCCURVESTYLE('c',$,$,$);",
       "IFCSTYLEDITEM($,(#5),'s')",
       "#2 IFCSTYLEDITEM, line 4: attribute 2 (Styles) holds IFCNULLSTYLE(.NULL.), which is no "
       "IfcPresentationStyle; left out.\n"},
      {"IFC2X3", "#2=IFCPROCEDURE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,'id',.STARTUP.,$);",
       "IFCPROCEDURE('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,'id',$,.STARTUP.)", ""},
      {"IFC2X3", "#2=IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,$,1.,2.,3.,4.,5.,6.,7.,8.,9.);",
       "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,$,1.,2.,3.,4.,5.,6.,7.,8.,$,$,$,$)",
       "note: #2 IFCASYMMETRICISHAPEPROFILEDEF, line 4: attribute 12 (CentreOfGravityInY) is 9.; "
       "the "
       "model has no place for it: left out.\n"},
      {"IFC2X3", "#2=IFCCLASSIFICATIONREFERENCE($,'i','n',#3);\n#3=IFCCLASSIFICATIONITEM($,$,'t');",
       "IFCCLASSIFICATIONREFERENCE($,'i','n',$,$,$)",
       "note: #2 IFCCLASSIFICATIONREFERENCE, line 4: attribute 4 (ReferencedSource) refers to #3, "
       "which the model has no place for; left out.\n"
       "note: #3 IFCCLASSIFICATIONITEM, line 5: is of a class that the model has nothing like; "
       "left out.\n"},
      {"IFC4X3", "#2=IFCMAPCONVERSION($,$,1.,2.,3.,$,$,2.,2.,$);",
       "IFCMAPCONVERSION($,$,1.,2.,3.,$,$,2.)",
       "#2 IFCMAPCONVERSION, line 4: attribute 1 (SourceCRS) has no value, though it must have "
       "one.\n#2 IFCMAPCONVERSION, line 4: attribute 2 (TargetCRS) has no value, though it must "
       "have one.\n"},
      {"IFC4X3_ADD1", "#2=IFCMAPCONVERSION(*,*,1.,2.,3.,$,$,2.,3.,$);",
       "IFCMAPCONVERSIONSCALED($,$,1.,2.,3.,$,$,2.,1.,1.5,1.)", ""},
      {"IFC4X3_RC4", "#2=IFCMAPCONVERSION(*,*,1.,2.,3.,$,$,2.,3.);",
       "IFCMAPCONVERSIONSCALED($,$,1.,2.,3.,$,$,2.,1.,1.5,1.)", ""},
      {"IFC4X3",
       "#2=IFCFACILITYPART('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,IFCELEMENTCOMPOSITIONENUM(."
       "ELEMENT.),IFCRAILWAYPARTTYPEENUM(.TRACKSTRUCTUREPART.),.LATERAL.);",
       "IFCRAILWAYPART('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.ELEMENT.,.LATERAL.,.TRACKPART.)",
       ""},
      {"IFC4X3", "#2=IFCFACILITYPART('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,$,$,.LATERAL.);",
       "IFCFACILITYPARTCOMMON('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,$,.LATERAL.,$)", ""},
      {"IFC4X3", "#2=IFCKERB('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.T.);",
       "IFCKERB('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,$)",
       "note: #2 IFCKERB, line 4: attribute 9 (PredefinedType) is .T.; the model has no place for "
       "it: left out.\n"},
      {"IFC4X3_RC2", "#2=IFCSOLIDSTRATUM('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$);",
       "IFCGEOTECHNICALSTRATUM('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,$,.SOLID.)", ""},
      {"IFC2X3", "#2=IFCPRODUCTREPRESENTATION($,$,(#3));\n#3=IFCREPRESENTATION($,$,$,());",
       "IFCPRODUCTDEFINITIONSHAPE($,$,(#3))", ""},
      {"IFC2X3",
       "#2=IFCAPPROVALRELATIONSHIP(#3,#4,'d','n');\n#3=IFCAPPROVAL($,$,$,$,$,'a','1');\n"
       "#4=IFCAPPROVAL($,$,$,$,$,'b','2');",
       "IFCAPPROVALRELATIONSHIP('n','d',#4,(#3))", ""},
      {"IFC4", "#2=IFCTRIANGULATEDFACESET($,$,.T.,((1,2,3)),((1,1,1)));",
       "IFCTRIANGULATEDFACESET($,$,.T.,((1,2,3)),$)",
       "note: #2 IFCTRIANGULATEDFACESET, line 4: attribute 5 (PnIndex) is ((1,1,1)); the model has "
       "no place for it: left out.\n"},
      {"IFC2X3",
       "#2=IFCRATIONALBEZIERCURVE(2,(#3,#3,#3,#3,#3),.UNSPECIFIED.,.F.,.F.,(1.,2.,1.,2.,1.));\n"
       "#3=IFCCARTESIANPOINT((0.,0.));",
       "IFCRATIONALBSPLINECURVEWITHKNOTS(2,(#3,#3,#3,#3,#3),.UNSPECIFIED.,.F.,.F.,(3,2,3),(0.,1.,2."
       "),.PIECEWISE_BEZIER_KNOTS.,(1.,2.,1.,2.,1.))",
       ""},
      {"IFC2X3", "#2=IFCCRANERAILFSHAPEPROFILEDEF(.AREA.,$,$,9.,4.,$,2.,3.,1.,1.5,$,$);",
       "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,$,4.,9.,1.,1.5,$,4.,2.,$,$,$,$,$)",
       "note: #2 IFCCRANERAILFSHAPEPROFILEDEF, line 4: attribute 8 (HeadDepth3) is 3.; the model "
       "has no place for it: left out.\n"
       "note: #2 IFCCRANERAILFSHAPEPROFILEDEF, line 4: becomes an IfcAsymmetricIShapeProfileDef, "
       "the nearest profile that there is.\n"},
      {"IFC2X_FINAL", "#2=IFCDISCRETEELEMENT('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,'t');",
       "IFCBUILDINGELEMENTPROXY('2Sa3dTJGn0H8TQIGiuGQd5',$,$,$,$,$,$,'t',$)",
       "note: line 1: the schema IFC2X_FINAL is read as IFC2X3.\n"},
      {"IFC4X3_ADD2",
       "#2=IFCPOINTBYDISTANCEEXPRESSION(IFCNONNEGATIVELENGTHMEASURE(5.),$,$,$,#3);\n"
       "#3=IFCPOLYLINE(());",
       "IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(5.),$,$,$,#3)",
       "note: #2 IFCPOINTBYDISTANCEEXPRESSION, line 4: attribute 1 (DistanceAlong) is of type "
       "IFCNONNEGATIVELENGTHMEASURE, which IfcCurveMeasureSelect doesn't take; taken as "
       "IFCLENGTHMEASURE.\n"},
  };
  for (const Older& older : table) {
    const ReadResult result = test::readStatements(older.before, older.schema);
    EXPECT_EQ(written(result, 2), older.after);
    std::string losses;
    for (const std::string& message : test::messages(result)) losses += message + '\n';
    for (const Problem& note : result.notes) losses += "note: " + note.toString() + '\n';
    EXPECT_EQ(losses, older.losses);
  }
}

}  // namespace
}  // namespace qor::host::step
