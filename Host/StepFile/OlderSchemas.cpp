#include "Host/StepFile/OlderSchemas.h"

#include "Host/StepFile/SchemaMap.h"
#include "Host/StepFile/Successors.h"

namespace qor::host::step {

namespace {

constexpr auto bit(SchemaVersion version) { return static_cast<std::uint8_t>(version); }

constexpr std::uint8_t ifc2x = bit(SchemaVersion::ifc2x);
constexpr std::uint8_t ifc2x3 = ifc2x | bit(SchemaVersion::ifc2x3);
constexpr std::uint8_t ifc4x1 = bit(SchemaVersion::ifc4x1);
constexpr std::uint8_t ifc4 = bit(SchemaVersion::ifc4) | ifc4x1;
constexpr std::uint8_t candidate = bit(SchemaVersion::ifc4x3Candidate);
constexpr std::uint8_t ifc4x3 = bit(SchemaVersion::ifc4x3) | candidate;
constexpr std::uint8_t upToIfc4 = ifc2x3 | ifc4;
constexpr std::uint8_t upToCandidate = upToIfc4 | candidate;
constexpr std::uint8_t all = upToIfc4 | ifc4x3;

constexpr std::string_view facilityPart = "@IfcSpatialStructureElement PredefinedType UsageType";
constexpr std::string_view mapConversion =
    "@IfcCoordinateOperation Eastings Northings OrthogonalHeight XAxisAbscissa XAxisOrdinate Scale "
    "~ScaleY ~ScaleZ";
constexpr std::string_view nearestProfile =
    "becomes an IfcAsymmetricIShapeProfileDef, the nearest profile that there is.";
constexpr std::string_view structuralProfileProperties =
    "Name ProfileDefinition -PhysicalWeight -Perimeter -MinimumPlateThickness "
    "-MaximumPlateThickness -CrossSectionArea -TorsionalConstantX -MomentOfInertiaYZ "
    "-MomentOfInertiaY -MomentOfInertiaZ -WarpingConstant -ShearCentreZ -ShearCentreY "
    "-ShearDeformationAreaZ -ShearDeformationAreaY -MaximumSectionModulusY "
    "-MinimumSectionModulusY -MaximumSectionModulusZ -MinimumSectionModulusZ "
    "-TorsionalSectionModulus -CentreOfGravityInX -CentreOfGravityInY";
constexpr std::string_view structuralSteelProfileProperties =
    "Name ProfileDefinition -PhysicalWeight -Perimeter -MinimumPlateThickness "
    "-MaximumPlateThickness -CrossSectionArea -TorsionalConstantX -MomentOfInertiaYZ "
    "-MomentOfInertiaY -MomentOfInertiaZ -WarpingConstant -ShearCentreZ -ShearCentreY "
    "-ShearDeformationAreaZ -ShearDeformationAreaY -MaximumSectionModulusY "
    "-MinimumSectionModulusY -MaximumSectionModulusZ -MinimumSectionModulusZ "
    "-TorsionalSectionModulus -CentreOfGravityInX -CentreOfGravityInY -ShearAreaZ -ShearAreaY "
    "-PlasticShapeFactorY -PlasticShapeFactorZ";

bool mentions(std::string_view parameters, std::string_view type) {
  return parameters.find(type) != std::string_view::npos;
}
bool isBridgePart(std::string_view text) { return mentions(text, "IFCBRIDGEPARTTYPEENUM"); }
bool isMarinePart(std::string_view text) { return mentions(text, "IFCMARINEPARTTYPEENUM"); }
bool isRailwayPart(std::string_view text) { return mentions(text, "IFCRAILWAYPARTTYPEENUM"); }
bool isRoadPart(std::string_view text) { return mentions(text, "IFCROADPARTTYPEENUM"); }

// Trailing attributes that an older schema doesn't have yet need no row, nor do attributes with
// another name in the same place.
constexpr OlderClass rows[] = {
    // Each style assignment stands for its styles.
    OlderClass{upToCandidate, "IFCPRESENTATIONSTYLEASSIGNMENT", unwrapped},

    // Elements
    OlderClass{upToCandidate, "IFCPROXY", "IfcBuildingElementProxy", "@IfcProduct -ProxyType Tag"},
    OlderClass{ifc4, "IFCBEAMSTANDARDCASE", "IfcBeam"},
    OlderClass{ifc4, "IFCCOLUMNSTANDARDCASE", "IfcColumn"},
    OlderClass{ifc4, "IFCDOORSTANDARDCASE", "IfcDoor"},
    OlderClass{ifc4, "IFCMEMBERSTANDARDCASE", "IfcMember"},
    OlderClass{ifc4, "IFCOPENINGSTANDARDCASE", "IfcOpeningElement"},
    OlderClass{ifc4, "IFCPLATESTANDARDCASE", "IfcPlate"},
    OlderClass{ifc4, "IFCSLABELEMENTEDCASE", "IfcSlab"},
    OlderClass{ifc4, "IFCSLABSTANDARDCASE", "IfcSlab"},
    OlderClass{ifc4, "IFCWALLELEMENTEDCASE", "IfcWall"},
    OlderClass{ifc4, "IFCWINDOWSTANDARDCASE", "IfcWindow"},
    OlderClass{ifc2x3, "IFCCHAMFEREDGEFEATURE", "IfcVoidingFeature",
               "@IfcElement -FeatureLength -Width -Height PredefinedType=CHAMFER"},
    OlderClass{ifc2x3, "IFCROUNDEDEDGEFEATURE", "IfcVoidingFeature",
               "@IfcElement -FeatureLength -Radius PredefinedType=EDGE"},
    OlderClass{ifc2x3, "IFCDISTRIBUTIONCONTROLELEMENT", "IfcDistributionControlElement",
               "@IfcElement -ControlElementId"},
    OlderClass{ifc2x3, "IFCELECTRICALELEMENT", "IfcDistributionElement"},
    OlderClass{ifc2x3, "IFCELECTRICDISTRIBUTIONPOINT", "IfcElectricDistributionBoard",
               "@IfcElement PredefinedType -UserDefinedFunction"},
    OlderClass{ifc2x3, "IFCEQUIPMENTELEMENT", "IfcBuildingElementProxy"},
    OlderClass{ifc2x3, "IFCTRANSPORTELEMENT", "IfcTransportElement",
               "@IfcElement PredefinedType -CapacityByWeight -CapacityByNumber"},
    OlderClass{ifc2x, "IFCDISCRETEELEMENT", "IfcBuildingElementProxy"},
    OlderClass{ifc4, "IFCBUILDINGELEMENT", "IfcBuiltElement"},
    OlderClass{ifc4, "IFCBUILDINGELEMENTTYPE", "IfcBuiltElementType"},

    // Infrastructure: a part says by the type of its enumerator of which facility it is.
    OlderClass{ifc4x3, "IFCFACILITYPART", "IfcBridgePart", facilityPart, isBridgePart},
    OlderClass{ifc4x3, "IFCFACILITYPART", "IfcMarinePart", facilityPart, isMarinePart},
    OlderClass{ifc4x3, "IFCFACILITYPART", "IfcRailwayPart", facilityPart, isRailwayPart},
    OlderClass{ifc4x3, "IFCFACILITYPART", "IfcRoadPart", facilityPart, isRoadPart},
    OlderClass{ifc4x3, "IFCFACILITYPART", "IfcFacilityPartCommon", facilityPart},
    OlderClass{ifc4x1, "IFCBRIDGEPART", "IfcBridgePart",
               "@IfcSpatialStructureElement PredefinedType"},
    OlderClass{candidate, "IFCSOLIDSTRATUM", "IfcGeotechnicalStratum",
               "@IfcElement PredefinedType=SOLID"},
    OlderClass{candidate, "IFCVOIDSTRATUM", "IfcGeotechnicalStratum",
               "@IfcElement PredefinedType=VOID"},
    OlderClass{candidate, "IFCWATERSTRATUM", "IfcGeotechnicalStratum",
               "@IfcElement PredefinedType=WATER"},
    OlderClass{ifc4x1, "IFCALIGNMENT", "IfcAlignment", "@IfcProduct -Axis PredefinedType"},
    OlderClass{candidate, "IFCALIGNMENTHORIZONTAL", "IfcAlignmentHorizontal",
               "@IfcProduct -StartDistAlong"},
    OlderClass{ifc4x1 | candidate, "IFCREFERENT", "IfcReferent",
               "@IfcProduct PredefinedType -RestartDistance"},
    OlderClass{all, "IFCMAPCONVERSION", "IfcMapConversionScaled", mapConversion, scalesUnequally,
               completeScaledConversion},
    OlderClass{all, "IFCMAPCONVERSION", "IfcMapConversion", mapConversion},

    // Types
    OlderClass{
        upToCandidate, "IFCDOORSTYLE", "IfcDoorType",
        "@IfcTypeProduct OperationType -ConstructionType ParameterTakesPrecedence -Sizeable"},
    OlderClass{
        upToCandidate, "IFCWINDOWSTYLE", "IfcWindowType",
        "@IfcTypeProduct -ConstructionType PartitioningType ParameterTakesPrecedence -Sizeable"},
    OlderClass{ifc2x3, "IFCGASTERMINALTYPE", "IfcBurnerType"},

    // Groups, processes, resources and controls
    OlderClass{ifc2x3, "IFCELECTRICALCIRCUIT", "IfcDistributionCircuit"},
    OlderClass{ifc2x3, "IFCTASK", "IfcTask",
               "@IfcObject Identification Status WorkMethod IsMilestone Priority"},
    OlderClass{ifc2x3, "IFCMOVE", "IfcTask",
               "@IfcObject Identification Status WorkMethod IsMilestone Priority -MoveFrom -MoveTo "
               "-PunchList"},
    OlderClass{ifc2x3, "IFCORDERACTION", "IfcTask",
               "@IfcObject Identification Status WorkMethod IsMilestone Priority -ActionID"},
    OlderClass{ifc2x3, "IFCPROCEDURE", "IfcProcedure",
               "@IfcObject Identification PredefinedType -UserDefinedProcedureType"},
    OlderClass{ifc2x3, "IFCWORKPLAN", "IfcWorkPlan",
               "@IfcObject Identification -CreationDate Creators Purpose -Duration -TotalFloat "
               "-StartTime -FinishTime "
               "PredefinedType -UserDefinedControlType"},
    OlderClass{ifc2x3, "IFCWORKSCHEDULE", "IfcWorkSchedule",
               "@IfcObject Identification -CreationDate Creators Purpose -Duration -TotalFloat "
               "-StartTime -FinishTime "
               "PredefinedType -UserDefinedControlType"},
    OlderClass{ifc2x3, "IFCCOSTSCHEDULE", "IfcCostSchedule",
               "@IfcObject -SubmittedBy -PreparedBy -SubmittedOn Status -TargetUsers -UpdateDate "
               "Identification "
               "PredefinedType"},
    OlderClass{ifc2x3, "IFCPERFORMANCEHISTORY", "IfcPerformanceHistory",
               "@IfcObject LifeCyclePhase"},
    OlderClass{ifc2x3, "IFCCREWRESOURCE", "IfcCrewResource",
               "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity"},
    OlderClass{
        ifc2x3, "IFCLABORRESOURCE", "IfcLaborResource",
        "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity -SkillSet"},
    OlderClass{ifc2x3, "IFCSUBCONTRACTRESOURCE", "IfcSubContractResource",
               "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity "
               "-SubContractor -JobDescription"},
    OlderClass{ifc2x3, "IFCCONSTRUCTIONEQUIPMENTRESOURCE", "IfcConstructionEquipmentResource",
               "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity"},
    OlderClass{ifc2x3, "IFCCONSTRUCTIONMATERIALRESOURCE", "IfcConstructionMaterialResource",
               "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity "
               "-Suppliers -UsageRatio"},
    OlderClass{ifc2x3, "IFCCONSTRUCTIONPRODUCTRESOURCE", "IfcConstructionProductResource",
               "@IfcObject Identification -ResourceGroup -ResourceConsumption -BaseQuantity"},

    // Relationships
    OlderClass{ifc2x3, "IFCRELASSIGNSTASKS", "IfcRelAssignsToControl",
               "@IfcRelAssignsToControl -TimeForTask"},
    OlderClass{ifc2x3, "IFCRELASSIGNSTOPROJECTORDER", "IfcRelAssignsToControl"},
    OlderClass{ifc2x3, "IFCRELSCHEDULESCOSTITEMS", "IfcRelAssignsToControl"},
    OlderClass{ifc2x3, "IFCRELOCCUPIESSPACES", "IfcRelAssignsToActor"},
    OlderClass{ifc2x3, "IFCRELOVERRIDESPROPERTIES", "IfcRelDefinesByProperties",
               "@IfcRelDefinesByProperties -OverridingProperties"},
    OlderClass{ifc2x3, "IFCRELSEQUENCE", "IfcRelSequence",
               "@IfcRelationship RelatingProcess RelatedProcess -TimeLag SequenceType"},

    // Placements and geometry
    OlderClass{upToIfc4, "IFCGRIDPLACEMENT", "IfcGridPlacement",
               "PlacementLocation PlacementRefDirection"},
    OlderClass{upToIfc4, "IFCFIXEDREFERENCESWEPTAREASOLID", "IfcFixedReferenceSweptAreaSolid",
               "@IfcSweptAreaSolid Directrix StartParam:IFCPARAMETERVALUE "
               "EndParam:IFCPARAMETERVALUE FixedReference"},
    OlderClass{upToIfc4, "IFCSURFACECURVESWEPTAREASOLID", "IfcSurfaceCurveSweptAreaSolid",
               "@IfcSweptAreaSolid Directrix StartParam:IFCPARAMETERVALUE "
               "EndParam:IFCPARAMETERVALUE ReferenceSurface"},
    OlderClass{ifc4 | ifc4x3, "IFCSECTIONEDSOLIDHORIZONTAL", "IfcSectionedSolidHorizontal",
               "Directrix CrossSections CrossSectionPositions -FixedAxisVertical"},
    OlderClass{ifc2x3, "IFC2DCOMPOSITECURVE", "IfcCompositeCurve"},
    OlderClass{ifc2x3, "IFCBEZIERCURVE", "IfcBSplineCurveWithKnots", "@IfcBSplineCurve", nullptr,
               completeBezierCurve},
    OlderClass{ifc2x3, "IFCRATIONALBEZIERCURVE", "IfcRationalBSplineCurveWithKnots",
               "@IfcBSplineCurve WeightsData", nullptr, completeBezierCurve},
    OlderClass{ifc4, "IFCTRIANGULATEDFACESET", "IfcTriangulatedFaceSet",
               "@IfcTessellatedFaceSet Normals Closed CoordIndex PnIndex*"},

    // Representations that had no class of their own kind yet.
    OlderClass{ifc2x3, "IFCPRODUCTREPRESENTATION", "IfcProductDefinitionShape"},
    OlderClass{ifc2x3, "IFCREPRESENTATION", "IfcShapeRepresentation"},
    OlderClass{ifc2x3, "IFCREPRESENTATIONCONTEXT", "IfcGeometricRepresentationContext",
               "@IfcRepresentationContext"},

    // Profiles
    OlderClass{ifc2x3, "IFCASYMMETRICISHAPEPROFILEDEF", "IfcAsymmetricIShapeProfileDef",
               "@IfcParameterizedProfileDef BottomFlangeWidth OverallDepth WebThickness "
               "BottomFlangeThickness "
               "BottomFlangeFilletRadius TopFlangeWidth TopFlangeThickness TopFlangeFilletRadius "
               "-CentreOfGravityInY"},
    OlderClass{ifc2x3, "IFCCSHAPEPROFILEDEF", "IfcCShapeProfileDef",
               "@IfcCShapeProfileDef -CentreOfGravityInX"},
    OlderClass{ifc2x3, "IFCLSHAPEPROFILEDEF", "IfcLShapeProfileDef",
               "@IfcLShapeProfileDef -CentreOfGravityInX -CentreOfGravityInY"},
    OlderClass{ifc2x3, "IFCTSHAPEPROFILEDEF", "IfcTShapeProfileDef",
               "@IfcTShapeProfileDef -CentreOfGravityInY"},
    OlderClass{ifc2x3, "IFCUSHAPEPROFILEDEF", "IfcUShapeProfileDef",
               "@IfcUShapeProfileDef -CentreOfGravityInX"},
    OlderClass{ifc2x3, "IFCCRANERAILASHAPEPROFILEDEF", "IfcAsymmetricIShapeProfileDef",
               "@IfcParameterizedProfileDef OverallDepth BottomFlangeWidth -Radius TopFlangeWidth "
               "TopFlangeThickness -HeadDepth3 WebThickness -BaseWidth4 BottomFlangeThickness "
               "-BaseDepth2 -BaseDepth3 -CentreOfGravityInY",
               nullptr, nullptr, nearestProfile},
    OlderClass{ifc2x3, "IFCCRANERAILFSHAPEPROFILEDEF", "IfcAsymmetricIShapeProfileDef",
               "@IfcParameterizedProfileDef OverallDepth TopFlangeWidth -Radius TopFlangeThickness "
               "-HeadDepth3 WebThickness BottomFlangeThickness -BaseDepth2 -CentreOfGravityInY",
               nullptr, completeCraneRailF, nearestProfile},
    OlderClass{ifc2x3, "IFCSTRUCTURALPROFILEPROPERTIES", "IfcProfileProperties",
               structuralProfileProperties},
    OlderClass{ifc2x3, "IFCSTRUCTURALSTEELPROFILEPROPERTIES", "IfcProfileProperties",
               structuralSteelProfileProperties},
    OlderClass{ifc2x3, "IFCRIBPLATEPROFILEPROPERTIES", "IfcProfileProperties",
               "Name ProfileDefinition -Thickness -RibHeight -RibWidth -RibSpacing -Direction"},
    OlderClass{ifc2x3, "IFCGENERALPROFILEPROPERTIES", "IfcProfileProperties",
               "Name ProfileDefinition -PhysicalWeight -Perimeter -MinimumPlateThickness "
               "-MaximumPlateThickness "
               "-CrossSectionArea"},

    // Styles
    OlderClass{ifc2x3, "IFCANNOTATIONCURVEOCCURRENCE", "IfcStyledItem"},
    OlderClass{ifc2x3, "IFCANNOTATIONFILLAREAOCCURRENCE", "IfcStyledItem",
               "@IfcStyledItem -FillStyleTarget -GlobalOrLocal"},
    OlderClass{ifc2x3, "IFCANNOTATIONSURFACEOCCURRENCE", "IfcStyledItem"},
    OlderClass{ifc2x3, "IFCANNOTATIONSYMBOLOCCURRENCE", "IfcStyledItem"},
    OlderClass{ifc2x3, "IFCANNOTATIONTEXTOCCURRENCE", "IfcStyledItem"},
    OlderClass{ifc2x3, "IFCBLOBTEXTURE", "IfcBlobTexture",
               "RepeatS RepeatT -TextureType TextureTransform RasterFormat RasterCode"},
    OlderClass{ifc2x3, "IFCIMAGETEXTURE", "IfcImageTexture",
               "RepeatS RepeatT -TextureType TextureTransform URLReference"},
    OlderClass{ifc2x3, "IFCPIXELTEXTURE", "IfcPixelTexture",
               "RepeatS RepeatT -TextureType TextureTransform Width Height ColourComponents Pixel"},
    OlderClass{ifc2x3, "IFCTEXTURECOORDINATEGENERATOR", "IfcTextureCoordinateGenerator",
               "Mode -Parameter"},
    OlderClass{ifc2x3, "IFCTEXTUREMAP", "IfcTextureMap", "-TextureMaps"},

    // Structural analysis
    OlderClass{ifc2x3, "IFCSTRUCTURALPOINTACTION", "IfcStructuralPointAction",
               "@IfcStructuralActivity DestabilizingLoad -CausedBy"},
    OlderClass{ifc2x3, "IFCSTRUCTURALLINEARACTION", "IfcStructuralLinearAction",
               "@IfcStructuralActivity DestabilizingLoad -CausedBy ProjectedOrTrue"},
    OlderClass{ifc2x3, "IFCSTRUCTURALLINEARACTIONVARYING", "IfcStructuralLinearAction",
               "@IfcStructuralActivity DestabilizingLoad -CausedBy ProjectedOrTrue "
               "-VaryingAppliedLoadLocation "
               "-SubsequentAppliedLoads"},
    OlderClass{ifc2x3, "IFCSTRUCTURALPLANARACTION", "IfcStructuralPlanarAction",
               "@IfcStructuralActivity DestabilizingLoad -CausedBy ProjectedOrTrue"},
    OlderClass{ifc2x3, "IFCSTRUCTURALPLANARACTIONVARYING", "IfcStructuralPlanarAction",
               "@IfcStructuralActivity DestabilizingLoad -CausedBy ProjectedOrTrue "
               "-VaryingAppliedLoadLocation "
               "-SubsequentAppliedLoads"},
    OlderClass{ifc2x3, "IFCSTRUCTURALSURFACEMEMBERVARYING", "IfcStructuralSurfaceMemberVarying",
               "@IfcStructuralSurfaceMember -SubsequentThickness -VaryingThicknessLocation"},
    OlderClass{ifc2x3, "IFCBOUNDARYNODECONDITION", "IfcBoundaryNodeCondition",
               "Name TranslationalStiffnessX:IFCLINEARSTIFFNESSMEASURE "
               "TranslationalStiffnessY:IFCLINEARSTIFFNESSMEASURE "
               "TranslationalStiffnessZ:IFCLINEARSTIFFNESSMEASURE "
               "RotationalStiffnessX:IFCROTATIONALSTIFFNESSMEASURE "
               "RotationalStiffnessY:IFCROTATIONALSTIFFNESSMEASURE "
               "RotationalStiffnessZ:IFCROTATIONALSTIFFNESSMEASURE"},
    OlderClass{ifc2x3, "IFCBOUNDARYNODECONDITIONWARPING", "IfcBoundaryNodeConditionWarping",
               "Name TranslationalStiffnessX:IFCLINEARSTIFFNESSMEASURE "
               "TranslationalStiffnessY:IFCLINEARSTIFFNESSMEASURE "
               "TranslationalStiffnessZ:IFCLINEARSTIFFNESSMEASURE "
               "RotationalStiffnessX:IFCROTATIONALSTIFFNESSMEASURE "
               "RotationalStiffnessY:IFCROTATIONALSTIFFNESSMEASURE "
               "RotationalStiffnessZ:IFCROTATIONALSTIFFNESSMEASURE "
               "WarpingStiffness:IFCWARPINGMOMENTMEASURE"},
    OlderClass{ifc2x3, "IFCBOUNDARYEDGECONDITION", "IfcBoundaryEdgeCondition",
               "Name TranslationalStiffnessByLengthX:IFCMODULUSOFLINEARSUBGRADEREACTIONMEASURE "
               "TranslationalStiffnessByLengthY:IFCMODULUSOFLINEARSUBGRADEREACTIONMEASURE "
               "TranslationalStiffnessByLengthZ:IFCMODULUSOFLINEARSUBGRADEREACTIONMEASURE "
               "RotationalStiffnessByLengthX:IFCMODULUSOFROTATIONALSUBGRADEREACTIONMEASURE "
               "RotationalStiffnessByLengthY:IFCMODULUSOFROTATIONALSUBGRADEREACTIONMEASURE "
               "RotationalStiffnessByLengthZ:IFCMODULUSOFROTATIONALSUBGRADEREACTIONMEASURE"},
    OlderClass{ifc2x3, "IFCBOUNDARYFACECONDITION", "IfcBoundaryFaceCondition",
               "Name TranslationalStiffnessByAreaX:IFCMODULUSOFSUBGRADEREACTIONMEASURE "
               "TranslationalStiffnessByAreaY:IFCMODULUSOFSUBGRADEREACTIONMEASURE "
               "TranslationalStiffnessByAreaZ:IFCMODULUSOFSUBGRADEREACTIONMEASURE"},

    // Properties, quantities and what they refer to
    OlderClass{upToCandidate, "IFCQUANTITYCOUNT", "IfcQuantityCount",
               "@IfcPhysicalSimpleQuantity CountValue% Formula"},
    OlderClass{ifc2x3, "IFCEXTENDEDMATERIALPROPERTIES", "IfcMaterialProperties",
               "Material Properties Description Name"},
    OlderClass{ifc2x3, "IFCMONETARYUNIT", "IfcMonetaryUnit", "Currency'"},
    OlderClass{ifc2x3, "IFCCURRENCYRELATIONSHIP", "IfcCurrencyRelationship",
               "RelatingMonetaryUnit RelatedMonetaryUnit ExchangeRate -RateDateTime RateSource"},
    OlderClass{ifc2x3, "IFCAPPROVAL", "IfcApproval",
               "Description -ApprovalDateTime Status Level Qualifier Name Identifier"},
    OlderClass{
        ifc2x3, "IFCOBJECTIVE", "IfcObjective",
        "Name Description ConstraintGrade ConstraintSource CreatingActor -CreationTime "
        "UserDefinedGrade -BenchmarkValues -ResultValues ObjectiveQualifier UserDefinedQualifier"},
    OlderClass{ifc2x3, "IFCMETRIC", "IfcMetric",
               "Name Description ConstraintGrade ConstraintSource CreatingActor -CreationTime "
               "UserDefinedGrade Benchmark ValueSource DataValue"},
    OlderClass{ifc2x3, "IFCCONSTRAINTAGGREGATIONRELATIONSHIP", "IfcResourceConstraintRelationship",
               "Name Description RelatingConstraint RelatedResourceObjects -LogicalAggregator"},
    OlderClass{ifc2x3, "IFCCONSTRAINTRELATIONSHIP", "IfcResourceConstraintRelationship"},
    OlderClass{ifc2x3, "IFCAPPROVALRELATIONSHIP", "IfcApprovalRelationship",
               "RelatedApprovals[] RelatingApproval Description Name"},
    OlderClass{ifc2x3, "IFCAPPROVALPROPERTYRELATIONSHIP", "IfcResourceApprovalRelationship",
               "RelatedResourceObjects RelatingApproval"},
    OlderClass{ifc2x3, "IFCDOCUMENTINFORMATIONRELATIONSHIP", "IfcDocumentInformationRelationship",
               "RelatingDocument RelatedDocuments RelationshipType"},
    OlderClass{ifc2x3, "IFCPROPERTYDEPENDENCYRELATIONSHIP", "IfcPropertyDependencyRelationship",
               "DependingProperty DependantProperty Name Description Expression"},
    OlderClass{ifc2x3, "IFCCLASSIFICATION", "IfcClassification",
               "Source Edition -EditionDate Name"},
    OlderClass{ifc2x3, "IFCCOSTVALUE", "IfcCostValue",
               "Name Description AppliedValue UnitBasis -ApplicableDate -FixedUntilDate Category "
               "Condition"},
    OlderClass{ifc2x3, "IFCENVIRONMENTALIMPACTVALUE", "IfcAppliedValue",
               "Name Description AppliedValue UnitBasis -ApplicableDate -FixedUntilDate Category "
               "-ImpactCategory -UserDefinedCategory"},
    OlderClass{ifc2x3, "IFCASSET", "IfcAsset",
               "@IfcObject Identification OriginalValue CurrentValue TotalReplacementCost Owner "
               "User ResponsiblePerson -IncorporationDate DepreciatedValue"},
    OlderClass{ifc2x3, "IFCINVENTORY", "IfcInventory",
               "@IfcObject PredefinedType Jurisdiction ResponsiblePersons -LastUpdateDate "
               "CurrentValue OriginalValue"},
    OlderClass{ifc2x3, "IFCREGULARTIMESERIES", "IfcRegularTimeSeries",
               "Name Description -StartTime -EndTime TimeSeriesDataType DataOrigin "
               "UserDefinedDataOrigin Unit TimeStep Values"},
    OlderClass{ifc2x3, "IFCIRREGULARTIMESERIES", "IfcIrregularTimeSeries",
               "Name Description -StartTime -EndTime TimeSeriesDataType DataOrigin "
               "UserDefinedDataOrigin Unit Values"},
    OlderClass{ifc2x3, "IFCIRREGULARTIMESERIESVALUE", "IfcIrregularTimeSeriesValue",
               "-TimeStamp ListValues"},
    OlderClass{ifc2x3, "IFCPROPERTYCONSTRAINTRELATIONSHIP", "IfcResourceConstraintRelationship",
               "RelatingConstraint RelatedResourceObjects Name Description"},
    OlderClass{ifc2x3, "IFCDOCUMENTINFORMATION", "IfcDocumentInformation",
               "Identification Name Description -DocumentReferences Purpose IntendedUse Scope "
               "Revision DocumentOwner Editors "
               "-CreationTime -LastRevisionTime -ElectronicFormat -ValidFrom -ValidUntil "
               "Confidentiality Status"},
    OlderClass{ifc2x3, "IFCLIBRARYINFORMATION", "IfcLibraryInformation",
               "Name Version Publisher -VersionDate -LibraryReference"},

    // Dimensions and symbols of drawings, dates, materials by fixed sets, and what else went.
    OlderClass{ifc2x3, "IFCANGULARDIMENSION", withoutPlace},
    OlderClass{ifc2x3, "IFCANNOTATIONSURFACE", withoutPlace},
    OlderClass{ifc2x3, "IFCAPPLIEDVALUERELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCAPPROVALACTORRELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCCALENDARDATE", withoutPlace},
    OlderClass{ifc2x3, "IFCCLASSIFICATIONITEM", withoutPlace},
    OlderClass{ifc2x3, "IFCCLASSIFICATIONITEMRELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCCLASSIFICATIONNOTATION", withoutPlace},
    OlderClass{ifc2x3, "IFCCLASSIFICATIONNOTATIONFACET", withoutPlace},
    OlderClass{ifc2x3, "IFCCONDITION", withoutPlace},
    OlderClass{ifc2x3, "IFCCONDITIONCRITERION", withoutPlace},
    OlderClass{ifc2x3, "IFCCONSTRAINTCLASSIFICATIONRELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCCOORDINATEDUNIVERSALTIMEOFFSET", withoutPlace},
    OlderClass{ifc2x3, "IFCDATEANDTIME", withoutPlace},
    OlderClass{ifc2x3, "IFCDEFINEDSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCDIAMETERDIMENSION", withoutPlace},
    OlderClass{ifc2x3, "IFCDIMENSIONCALLOUTRELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCDIMENSIONCURVE", withoutPlace},
    OlderClass{ifc2x3, "IFCDIMENSIONCURVEDIRECTEDCALLOUT", withoutPlace},
    OlderClass{ifc2x3, "IFCDIMENSIONCURVETERMINATOR", withoutPlace},
    OlderClass{ifc2x3, "IFCDIMENSIONPAIR", withoutPlace},
    OlderClass{ifc2x3, "IFCDOCUMENTELECTRONICFORMAT", withoutPlace},
    OlderClass{ifc2x3, "IFCDRAUGHTINGCALLOUT", withoutPlace},
    OlderClass{ifc2x3, "IFCDRAUGHTINGCALLOUTRELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCDRAUGHTINGPREDEFINEDTEXTFONT", withoutPlace},
    OlderClass{ifc2x3, "IFCELECTRICALBASEPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCENERGYPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCEQUIPMENTSTANDARD", withoutPlace},
    OlderClass{ifc2x3, "IFCEXTERNALLYDEFINEDSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCFILLAREASTYLETILESYMBOLWITHSTYLE", withoutPlace},
    OlderClass{ifc2x3, "IFCFLUIDFLOWPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCFUELPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCFURNITURESTANDARD", withoutPlace},
    OlderClass{ifc2x3, "IFCGENERALMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCHYGROSCOPICMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCLINEARDIMENSION", withoutPlace},
    OlderClass{ifc2x3, "IFCLOCALTIME", withoutPlace},
    OlderClass{ifc2x3, "IFCMECHANICALCONCRETEMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCMECHANICALMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCMECHANICALSTEELMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCONEDIRECTIONREPEATFACTOR", withoutPlace},
    OlderClass{ifc2x3, "IFCOPTICALMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCPREDEFINEDDIMENSIONSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCPREDEFINEDPOINTMARKERSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCPREDEFINEDTERMINATORSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCPRODUCTSOFCOMBUSTIONPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCPROJECTORDERRECORD", withoutPlace},
    OlderClass{ifc2x3, "IFCPROJECTIONCURVE", withoutPlace},
    OlderClass{ifc2x3, "IFCRADIUSDIMENSION", withoutPlace},
    OlderClass{ifc2x3, "IFCRELASSOCIATESAPPLIEDVALUE", withoutPlace},
    OlderClass{ifc2x3, "IFCRELASSOCIATESPROFILEPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCRELCONNECTSSTRUCTURALELEMENT", withoutPlace},
    OlderClass{ifc2x3, "IFCRELINTERACTIONREQUIREMENTS", withoutPlace},
    OlderClass{ifc2x3, "IFCRELAXATION", withoutPlace},
    OlderClass{ifc2x3, "IFCSCHEDULETIMECONTROL", withoutPlace},
    OlderClass{ifc2x3, "IFCSERVICELIFE", withoutPlace},
    OlderClass{ifc2x3, "IFCSERVICELIFEFACTOR", withoutPlace},
    OlderClass{ifc2x3, "IFCSOUNDPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCSOUNDVALUE", withoutPlace},
    OlderClass{ifc2x3, "IFCSPACEPROGRAM", withoutPlace},
    OlderClass{ifc2x3, "IFCSPACETHERMALLOADPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCSTRUCTUREDDIMENSIONCALLOUT", withoutPlace},
    OlderClass{ifc2x3, "IFCSYMBOLSTYLE", withoutPlace},
    OlderClass{ifc2x3, "IFCTERMINATORSYMBOL", withoutPlace},
    OlderClass{ifc2x3, "IFCTEXTSTYLEWITHBOXCHARACTERISTICS", withoutPlace},
    OlderClass{ifc2x3, "IFCTHERMALMATERIALPROPERTIES", withoutPlace},
    OlderClass{ifc2x3, "IFCTIMESERIESREFERENCERELATIONSHIP", withoutPlace},
    OlderClass{ifc2x3, "IFCTIMESERIESSCHEDULE", withoutPlace},
    OlderClass{ifc2x3, "IFCTWODIRECTIONREPEATFACTOR", withoutPlace},
    OlderClass{ifc2x3, "IFCVERTEXBASEDTEXTUREMAP", withoutPlace},
    OlderClass{ifc2x3, "IFCWATERPROPERTIES", withoutPlace},

    // Alignments as curves of two dimensions.
    OlderClass{ifc4x1, "IFCALIGNMENT2DHORIZONTAL", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DHORIZONTALSEGMENT", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DSEGMENT", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DVERSEGCIRCULARARC", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DVERSEGLINE", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DVERSEGPARABOLICARC", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DVERSEGTRANSITION", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENT2DVERTICAL", withoutPlace},
    OlderClass{ifc4x1, "IFCALIGNMENTCURVE", withoutPlace},
    OlderClass{ifc4x1, "IFCCIRCULARARCSEGMENT2D", withoutPlace},
    OlderClass{ifc4x1, "IFCCURVESEGMENT2D", withoutPlace},
    OlderClass{ifc4x1, "IFCDISTANCEEXPRESSION", withoutPlace},
    OlderClass{ifc4x1, "IFCLINESEGMENT2D", withoutPlace},
    OlderClass{ifc4x1, "IFCORIENTATIONEXPRESSION", withoutPlace},
    OlderClass{ifc4x1, "IFCTRANSITIONCURVESEGMENT2D", withoutPlace},
};

// Where an attribute was of another type, the truth values of that stand for enumerators.
constexpr OlderEnumerator enumerators[] = {
    {ifc4x3, "IfcRailwayPartTypeEnum", "TRACKSTRUCTURE", "TRACK"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "TRACKSTRUCTUREPART", "TRACKPART"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "LINESIDESTRUCTURE", "LINESIDE"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "LINESIDESTRUCTUREPART", "LINESIDEPART"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "PLAINTRACKSUPERSTRUCTURE", "PLAINTRACK"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "PLAINTRACKSUPESTRUCTURE", "PLAINTRACK"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "DILATATIONSUPERSTRUCTURE", "DILATIONTRACK"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "TURNOUTSUPERSTRUCTURE", "TURNOUTTRACK"},
    {ifc4x3, "IfcRailwayPartTypeEnum", "SUPERSTRUCTURE", "ABOVETRACK"},
    {ifc4x3, "IfcKerbTypeEnum", "T", ""},
    {ifc4x3, "IfcKerbTypeEnum", "F", ""},
    {ifc4x3, "IfcPavementTypeEnum", "T", "FLEXIBLE"},
    {ifc4x3, "IfcPavementTypeEnum", "F", "RIGID"},
    {candidate, "IfcAlignmentHorizontalSegmentTypeEnum", "BIQUADRATICPARABOLA", "HELMERTCURVE"},
    {candidate, "IfcAlignmentHorizontalSegmentTypeEnum", "CUBICSPIRAL", "CUBIC"},
    {candidate, "IfcAlignmentCantSegmentTypeEnum", "BIQUADRATICPARABOLA", "HELMERTCURVE"},
    {ifc2x3, "IfcChangeActionEnum", "MODIFIEDADDED", "MODIFIED"},
    {ifc2x3, "IfcChangeActionEnum", "MODIFIEDDELETED", "MODIFIED"},
    {ifc2x3, "IfcAirTerminalTypeEnum", "LINEARGRILLE", "GRILLE"},
    {ifc2x3, "IfcAirTerminalTypeEnum", "LINEARDIFFUSER", "DIFFUSER"},
    {ifc2x3, "IfcAirTerminalTypeEnum", "EYEBALL", ""},
    {ifc2x3, "IfcAirTerminalTypeEnum", "IRIS", ""},
    {ifc2x3, "IfcControllerTypeEnum", "PROPORTIONALINTEGRAL", "PROPORTIONAL"},
    {ifc2x3, "IfcControllerTypeEnum", "PROPORTIONALINTEGRALDERIVATIVE", "PROPORTIONAL"},
    {ifc2x3, "IfcControllerTypeEnum", "TIMEDTWOPOSITION", "TWOPOSITION"},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "SECTIONALRADIATOR", "RADIATOR"},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "PANELRADIATOR", "RADIATOR"},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "TUBULARRADIATOR", "RADIATOR"},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "BASEBOARDHEATER", ""},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "FINNEDTUBEUNIT", ""},
    {ifc2x3, "IfcSpaceHeaterTypeEnum", "UNITHEATER", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "DIRECTWATERHEATER", "FREESTANDINGWATERHEATER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "INDIRECTWATERHEATER", "FREESTANDINGWATERHEATER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "WATERHEATER", "FREESTANDINGWATERHEATER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "WATERCOOLER", "FREESTANDINGWATERCOOLER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "ELECTRICHEATER", "FREESTANDINGELECTRICHEATER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "RADIANTHEATER", "FREESTANDINGELECTRICHEATER"},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "COMPUTER", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "FACSIMILE", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "PRINTER", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "SCANNER", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "TELEPHONE", ""},
    {ifc2x3, "IfcElectricApplianceTypeEnum", "TV", ""},
};

}  // namespace

std::span<const OlderClass> olderClasses() { return rows; }
std::span<const OlderEnumerator> olderEnumerators() { return enumerators; }

}  // namespace qor::host::step
