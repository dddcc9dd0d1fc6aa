#include "Tests/Fc/Relationships/RelationshipTable.h"

#include <sstream>
#include <string_view>

namespace qor::fc::test {

namespace {

// Holder.attribute, how many it names, target.inverse, how many that holds. Names without "Ifc".
constexpr std::string_view table = R"(
RelAggregates.RelatingObject one ObjectDefinition.IsDecomposedBy set
RelAggregates.RelatedObjects set ObjectDefinition.Decomposes ref
RelNests.RelatingObject one ObjectDefinition.IsNestedBy set
RelNests.RelatedObjects list ObjectDefinition.Nests ref
RelVoidsElement.RelatingBuildingElement one Element.HasOpenings set
RelVoidsElement.RelatedOpeningElement one FeatureElementSubtraction.VoidsElements ref
RelProjectsElement.RelatingElement one Element.HasProjections set
RelProjectsElement.RelatedFeatureElement one FeatureElementAddition.ProjectsElements ref
RelAdheresToElement.RelatingElement one Element.HasSurfaceFeatures set
RelAdheresToElement.RelatedSurfaceFeatures set SurfaceFeature.AdheresToElement ref
RelAssigns.RelatedObjects set ObjectDefinition.HasAssignments set
RelAssignsToActor.RelatingActor one Actor.IsActingUpon set
RelAssignsToControl.RelatingControl one Control.Controls set
RelAssignsToGroup.RelatingGroup one Group.IsGroupedBy set
RelAssignsToProcess.RelatingProcess one Process.OperatesOn set
RelAssignsToProcess.RelatingProcess one TypeProcess.OperatesOn set
RelAssignsToProduct.RelatingProduct one Product.ReferencedBy set
RelAssignsToProduct.RelatingProduct one TypeProduct.ReferencedBy set
RelAssignsToResource.RelatingResource one Resource.ResourceOf set
RelAssignsToResource.RelatingResource one TypeResource.ResourceOf set
RelAssociates.RelatedObjects set ObjectDefinition.HasAssociations set
RelAssociates.RelatedObjects set PropertyDefinition.HasAssociations set
RelAssociatesApproval.RelatingApproval one Approval.ApprovedObjects set
RelAssociatesClassification.RelatingClassification one Classification.ClassificationForObjects set
RelAssociatesClassification.RelatingClassification one ClassificationReference.ClassificationRefForObjects set
RelAssociatesDocument.RelatingDocument one DocumentInformation.DocumentInfoForObjects set
RelAssociatesDocument.RelatingDocument one DocumentReference.DocumentRefForObjects set
RelAssociatesLibrary.RelatingLibrary one LibraryInformation.LibraryInfoForObjects set
RelAssociatesLibrary.RelatingLibrary one LibraryReference.LibraryRefForObjects set
RelAssociatesMaterial.RelatingMaterial one MaterialDefinition.AssociatedTo set
RelAssociatesMaterial.RelatingMaterial one MaterialUsageDefinition.AssociatedTo set
RelDeclares.RelatingContext one Context.Declares set
RelDeclares.RelatedDefinitions set ObjectDefinition.HasContext ref
RelDeclares.RelatedDefinitions set PropertyDefinition.HasContext ref
RelDefinesByObject.RelatingObject one Object.Declares set
RelDefinesByObject.RelatedObjects set Object.IsDeclaredBy ref
RelDefinesByProperties.RelatedObjects set Context.IsDefinedBy set
RelDefinesByProperties.RelatedObjects set Object.IsDefinedBy set
RelDefinesByProperties.RelatingPropertyDefinition one PropertySetDefinition.DefinesOccurrence set
RelDefinesByTemplate.RelatedPropertySets set PropertySetDefinition.IsDefinedBy set
RelDefinesByTemplate.RelatingTemplate one PropertySetTemplate.Defines set
RelDefinesByType.RelatedObjects set Object.IsTypedBy ref
RelDefinesByType.RelatingType one TypeObject.Types ref
RelConnectsElements.RelatingElement one Element.ConnectedTo set
RelConnectsElements.RelatedElement one Element.ConnectedFrom set
RelConnectsWithRealizingElements.RealizingElements set Element.IsConnectionRealization set
RelConnectsPortToElement.RelatingPort one Port.ContainedIn ref
RelConnectsPortToElement.RelatedElement one DistributionElement.HasPorts set
RelConnectsPorts.RelatingPort one Port.ConnectedTo ref
RelConnectsPorts.RelatedPort one Port.ConnectedFrom ref
RelContainedInSpatialStructure.RelatedElements set Element.ContainedInStructure ref
RelContainedInSpatialStructure.RelatedElements set Annotation.ContainedInStructure ref
RelContainedInSpatialStructure.RelatedElements set PositioningElement.ContainedInStructure ref
RelContainedInSpatialStructure.RelatingStructure one SpatialElement.ContainsElements set
RelReferencedInSpatialStructure.RelatedElements set Product.ReferencedInStructures set
RelReferencedInSpatialStructure.RelatedElements set Group.ReferencedInStructures set
RelReferencedInSpatialStructure.RelatedElements set System.ServicesFacilities set
RelReferencedInSpatialStructure.RelatingStructure one SpatialElement.ReferencesElements set
RelCoversBldgElements.RelatingBuildingElement one Element.HasCoverings set
RelCoversBldgElements.RelatedCoverings set Covering.CoversElements ref
RelCoversSpaces.RelatingSpace one Space.HasCoverings set
RelCoversSpaces.RelatedCoverings set Covering.CoversSpaces ref
RelFillsElement.RelatingOpeningElement one OpeningElement.HasFillings set
RelFillsElement.RelatedBuildingElement one Element.FillsVoids ref
RelFlowControlElements.RelatedControlElements set DistributionControlElement.AssignedToFlowElement ref
RelFlowControlElements.RelatingFlowElement one DistributionFlowElement.HasControlElements ref
RelInterferesElements.RelatingElement one Element.InterferesElements set
RelInterferesElements.RelatingElement one SpatialElement.InterferesElements set
RelInterferesElements.RelatedElement one Element.IsInterferedByElements set
RelInterferesElements.RelatedElement one SpatialElement.IsInterferedByElements set
RelPositions.RelatingPositioningElement one PositioningElement.Positions set
RelPositions.RelatedProducts set Product.PositionedRelativeTo set
RelSequence.RelatingProcess one Process.IsPredecessorTo set
RelSequence.RelatedProcess one Process.IsSuccessorFrom set
RelServicesBuildings.RelatingSystem one System.ServicesBuildings ref
RelServicesBuildings.RelatedBuildings set SpatialElement.ServicedBySystems set
RelSpaceBoundary.RelatingSpace one Space.BoundedBy set
RelSpaceBoundary.RelatingSpace one ExternalSpatialElement.BoundedBy set
RelSpaceBoundary.RelatedBuildingElement one Element.ProvidesBoundaries set
RelSpaceBoundary1stLevel.ParentBoundary one RelSpaceBoundary1stLevel.InnerBoundaries set
RelSpaceBoundary2ndLevel.CorrespondingBoundary one RelSpaceBoundary2ndLevel.Corresponds ref
RelConnectsStructuralActivity.RelatingElement one StructuralItem.AssignedStructuralActivity set
RelConnectsStructuralActivity.RelatedStructuralActivity one StructuralActivity.AssignedToStructuralItem ref
RelConnectsStructuralMember.RelatingStructuralMember one StructuralMember.ConnectedBy set
RelConnectsStructuralMember.RelatedStructuralConnection one StructuralConnection.ConnectsStructuralMembers set
ApprovalRelationship.RelatingApproval one Approval.Relates set
ApprovalRelationship.RelatedApprovals set Approval.IsRelatedWith set
OrganizationRelationship.RelatingOrganization one Organization.Relates set
OrganizationRelationship.RelatedOrganizations set Organization.IsRelatedBy set
DocumentInformationRelationship.RelatingDocument one DocumentInformation.IsPointer ref
DocumentInformationRelationship.RelatedDocuments set DocumentInformation.IsPointedTo set
MaterialRelationship.RelatingMaterial one Material.RelatesTo ref
MaterialRelationship.RelatedMaterials set Material.IsRelatedWith set
PropertyDependencyRelationship.DependingProperty one Property.PropertyForDependance set
PropertyDependencyRelationship.DependantProperty one Property.PropertyDependsOn set
ExternalReferenceRelationship.RelatingReference one ExternalReference.ExternalReferenceForResources set
ExternalReferenceRelationship.RelatedResourceObjects set ActorRole.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set AppliedValue.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set ContextDependentUnit.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set ConversionBasedUnit.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set ProfileDef.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set TimeSeries.HasExternalReference set
ExternalReferenceRelationship.RelatedResourceObjects set Approval.HasExternalReferences set
ExternalReferenceRelationship.RelatedResourceObjects set Constraint.HasExternalReferences set
ExternalReferenceRelationship.RelatedResourceObjects set MaterialDefinition.HasExternalReferences set
ExternalReferenceRelationship.RelatedResourceObjects set PhysicalQuantity.HasExternalReferences set
ExternalReferenceRelationship.RelatedResourceObjects set PropertyAbstraction.HasExternalReferences set
ExternalReferenceRelationship.RelatedResourceObjects set ShapeAspect.HasExternalReferences set
ResourceApprovalRelationship.RelatingApproval one Approval.ApprovedResources set
ResourceApprovalRelationship.RelatedResourceObjects set Property.HasApprovals set
ResourceConstraintRelationship.RelatingConstraint one Constraint.PropertiesForConstraint set
ResourceConstraintRelationship.RelatedResourceObjects set Property.HasConstraints set
Product.ObjectPlacement one ObjectPlacement.PlacesObject set
Product.Representation one ProductDefinitionShape.ShapeOfProduct set
ObjectPlacement.PlacementRelTo one ObjectPlacement.ReferencedByPlacements set
TypeObject.HasPropertySets set PropertySetDefinition.DefinesType set
PropertySet.HasProperties set Property.PartOfPset set
ComplexProperty.HasProperties set Property.PartOfComplex set
PropertySetTemplate.HasPropertyTemplates set PropertyTemplate.PartOfPsetTemplate set
ComplexPropertyTemplate.HasPropertyTemplates set PropertyTemplate.PartOfComplexTemplate set
Person.Addresses list Address.OfPerson set
Organization.Addresses list Address.OfOrganization set
PersonAndOrganization.ThePerson one Person.EngagedIn set
PersonAndOrganization.TheOrganization one Organization.Engages set
ClassificationReference.ReferencedSource one Classification.HasReferences set
ClassificationReference.ReferencedSource one ClassificationReference.HasReferences set
DocumentReference.ReferencedDocument one DocumentInformation.HasDocumentReferences set
LibraryReference.ReferencedLibrary one LibraryInformation.HasLibraryReferences set
Grid.UAxes list GridAxis.PartOfU ref
Grid.VAxes list GridAxis.PartOfV ref
Grid.WAxes list GridAxis.PartOfW ref
VirtualGridIntersection.IntersectingAxes list GridAxis.HasIntersections set
Representation.ContextOfItems one RepresentationContext.RepresentationsInContext set
GeometricRepresentationSubContext.ParentContext one GeometricRepresentationContext.HasSubContexts set
CoordinateOperation.SourceCRS one GeometricRepresentationContext.HasCoordinateOperation ref
CoordinateOperation.SourceCRS one CoordinateReferenceSystem.HasCoordinateOperation ref
WellKnownText.CoordinateReferenceSystem one CoordinateReferenceSystem.WellKnownText ref
ProductRepresentation.Representations list Representation.OfProductRepresentation set
RepresentationMap.MappedRepresentation one Representation.RepresentationMap ref
MappedItem.MappingSource one RepresentationMap.MapUsage set
ShapeAspect.ShapeRepresentations list ShapeModel.OfShapeAspect ref
ShapeAspect.PartOfProductDefinitionShape one ProductDefinitionShape.HasShapeAspects set
ShapeAspect.PartOfProductDefinitionShape one RepresentationMap.HasShapeAspects set
PresentationLayerAssignment.AssignedItems set Representation.LayerAssignments set
PresentationLayerAssignment.AssignedItems set RepresentationItem.LayerAssignment ref
StyledItem.Item one RepresentationItem.StyledByItem ref
MaterialDefinitionRepresentation.RepresentedMaterial one Material.HasRepresentation ref
MaterialProperties.Material one MaterialDefinition.HasProperties set
MaterialConstituentSet.MaterialConstituents set MaterialConstituent.ToMaterialConstituentSet ref
MaterialLayerSet.MaterialLayers list MaterialLayer.ToMaterialLayerSet ref
MaterialProfileSet.MaterialProfiles list MaterialProfile.ToMaterialProfileSet ref
ProfileProperties.ProfileDefinition one ProfileDef.HasProperties set
PhysicalComplexQuantity.HasQuantities set PhysicalQuantity.PartOfComplex ref
IndexedColourMap.MappedTo one TessellatedFaceSet.HasColours ref
IndexedTextureMap.MappedTo one TessellatedFaceSet.HasTextures set
TextureMap.MappedTo one Face.HasTextureMaps set
PolygonalFaceSet.Faces list IndexedPolygonalFace.ToFaceSet set
TextureCoordinateIndices.TexCoordsOf one IndexedPolygonalFace.HasTexCoords ref
IndexedPolygonalTextureMap.TexCoordIndices set TextureCoordinateIndices.ToTexMap ref
CompositeCurve.Segments list Segment.UsingCurves set
SurfaceStyleWithTextures.Textures list SurfaceTexture.UsedInStyles set
TextureCoordinate.Maps list SurfaceTexture.IsMappedBy set
StructuralAnalysisModel.LoadedBy set StructuralLoadGroup.LoadGroupFor set
StructuralAnalysisModel.HasResults set StructuralResultGroup.ResultGroupFor ref
StructuralResultGroup.ResultForLoadGroup one StructuralLoadGroup.SourceOfResultGroup ref
)";

std::string takeName(std::istream& in, char end) {
  std::string name;
  std::getline(in >> std::ws, name, end);
  return name;
}

}  // namespace

const std::vector<Relationship>& relationshipTable() {
  static const std::vector<Relationship> relationships = [] {
    std::vector<Relationship> rows;
    std::istringstream in{std::string(table)};
    while (in >> std::ws && !in.eof()) {
      Relationship row;
      row.holder = "Ifc" + takeName(in, '.');
      row.attribute = takeName(in, ' ');
      row.shape = takeName(in, ' ');
      row.target = "Ifc" + takeName(in, '.');
      row.inverse = takeName(in, ' ');
      row.single = takeName(in, '\n') == "ref";
      rows.push_back(row);
    }
    return rows;
  }();
  return relationships;
}

}  // namespace qor::fc::test
