#include "Host/StepFile/OlderSchemas.h"

#include <array>

#include "Host/StepFile/SchemaMap.h"

namespace qor::host::step {

namespace {

constexpr auto ifc2x3 = static_cast<std::uint8_t>(SchemaVersion::ifc2x3);
constexpr auto ifc4 = static_cast<std::uint8_t>(SchemaVersion::ifc4);
constexpr auto candidate = static_cast<std::uint8_t>(SchemaVersion::ifc4x3Candidate);
constexpr std::uint8_t upToIfc4 = ifc2x3 | ifc4;
constexpr std::uint8_t allOlder = upToIfc4 | candidate;

// Trailing attributes that an older schema doesn't have yet need no row, nor do attributes with
// another name in the same place.
constexpr std::array rows = {
    // Each style assignment stands for its styles.
    OlderClass{allOlder, "IFCPRESENTATIONSTYLEASSIGNMENT", unwrapped},

    // Elements
    OlderClass{allOlder, "IFCPROXY", "IfcBuildingElementProxy", "@IfcProduct -ProxyType Tag"},
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
               "@IfcElement -FeatureLength -Width -Height"},
    OlderClass{ifc2x3, "IFCROUNDEDEDGEFEATURE", "IfcVoidingFeature",
               "@IfcElement -FeatureLength -Radius"},
    OlderClass{ifc2x3, "IFCDISTRIBUTIONCONTROLELEMENT", "IfcDistributionControlElement",
               "@IfcElement -ControlElementId"},
    OlderClass{ifc2x3, "IFCELECTRICALELEMENT", "IfcDistributionElement"},
    OlderClass{ifc2x3, "IFCELECTRICDISTRIBUTIONPOINT", "IfcElectricDistributionBoard",
               "@IfcElement PredefinedType -UserDefinedFunction"},
    OlderClass{ifc2x3, "IFCEQUIPMENTELEMENT", "IfcBuildingElementProxy"},
    OlderClass{ifc2x3, "IFCTRANSPORTELEMENT", "IfcTransportElement",
               "@IfcElement PredefinedType -CapacityByWeight -CapacityByNumber"},
    OlderClass{candidate, "IFCFACILITYPART", "IfcFacilityPartCommon",
               "@IfcSpatialStructureElement -PredefinedType UsageType"},

    // Types
    OlderClass{
        allOlder, "IFCDOORSTYLE", "IfcDoorType",
        "@IfcTypeProduct OperationType -ConstructionType ParameterTakesPrecedence -Sizeable"},
    OlderClass{
        allOlder, "IFCWINDOWSTYLE", "IfcWindowType",
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
    OlderClass{ifc4 | candidate, "IFCSECTIONEDSOLIDHORIZONTAL", "IfcSectionedSolidHorizontal",
               "Directrix CrossSections CrossSectionPositions -FixedAxisVertical"},
    OlderClass{ifc2x3, "IFC2DCOMPOSITECURVE", "IfcCompositeCurve"},

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
    OlderClass{allOlder, "IFCQUANTITYCOUNT", "IfcQuantityCount",
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
        "@IfcConstraint -BenchmarkValues -ResultValues ObjectiveQualifier UserDefinedQualifier"},
    OlderClass{ifc2x3, "IFCPROPERTYCONSTRAINTRELATIONSHIP", "IfcResourceConstraintRelationship",
               "RelatingConstraint RelatedResourceObjects Name Description"},
    OlderClass{ifc2x3, "IFCDOCUMENTINFORMATION", "IfcDocumentInformation",
               "Identification Name Description -DocumentReferences Purpose IntendedUse Scope "
               "Revision DocumentOwner Editors "
               "-CreationTime -LastRevisionTime -ElectronicFormat -ValidFrom -ValidUntil "
               "Confidentiality Status"},
    OlderClass{ifc2x3, "IFCLIBRARYINFORMATION", "IfcLibraryInformation",
               "Name Version Publisher -VersionDate -LibraryReference"},
};

}  // namespace

std::span<const OlderClass> olderClasses() { return rows; }

}  // namespace qor::host::step
