#include "Host/Cli/ModelExtract.h"

#include <algorithm>
#include <utility>

#include "Fc/Core/Kernel/FcContext.h"
#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelDeclares.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcFeatureElementAddition.h"
#include "Fc/Core/ProductExtension/FcFeatureElementSubtraction.h"
#include "Fc/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "Fc/Core/ProductExtension/FcRelProjectsElement.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"
#include "Fc/Core/ProductExtension/FcSpatialElement.h"
#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Resource/GeometricModel/FcTessellatedFaceSet.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Fc/Resource/Material/FcMaterial.h"
#include "Fc/Resource/PresentationOrganization/FcPresentationLayerAssignment.h"
#include "Fc/Resource/Profile/FcProfileDef.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationContext.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::host::cli {

using namespace fc::core::kernel;
using namespace fc::core::productextension;
using namespace fc::resource::representation;
using fc::LocalValue;
using fc::resource::geometricmodel::FcTessellatedFaceSet;
using fc::resource::geometry::FcRepresentationItem;
using fc::resource::material::FcMaterial;
using fc::resource::material::FcMaterialDefinition;
using fc::resource::presentationorganization::FcPresentationLayerAssignment;
using fc::resource::profile::FcProfileDef;

namespace {

/// What belongs to an entity though that doesn't refer to it: an inverse attribute names it.
struct Dependents {
  const fc::ClassInfo& of;
  std::string_view inverse;
};

const std::vector<Dependents>& dependents() {
  static const std::vector<Dependents> rows{
      {FcRepresentationItem::info(), "StyledByItem"},
      {FcTessellatedFaceSet::info(), "HasColours"},
      {FcTessellatedFaceSet::info(), "HasTextures"},
      {FcMaterialDefinition::info(), "HasProperties"},
      {FcMaterial::info(), "HasRepresentation"},
      {FcProfileDef::info(), "HasProperties"},
      {FcProductDefinitionShape::info(), "HasShapeAspects"},
      {FcGeometricRepresentationContext::info(), "HasCoordinateOperation"},
  };
  return rows;
}

template <class Callback>
void forEachDependent(const fc::FcBase& entity, Callback&& callback) {
  for (const Dependents& row : dependents()) {
    if (!row.of.contains(entity.classId())) continue;
    const fc::AttributeInfo* attribute = row.of.findInverseAttribute(row.inverse);
    attribute->type->forEachEntity(attribute->of(entity), callback);
  }
}

bool isListOfEntities(const fc::AttributeInfo& attribute) {
  return attribute.type->family == fc::TypeFamily::list && attribute.type->entitiesOnly;
}

}  // namespace

ModelExtract::ModelExtract(std::span<const step::NumberedEntity> instances,
                           const std::vector<Object>& chosen)
    : m_instances(instances) {
  m_settings.target = m_target;
  include(chosen);
  for (const Object& object : m_objects) object->deepCopy(m_settings);
  copyRelationships();
  copyDependents();
  copyLayers();
}

void ModelExtract::include(const std::vector<Object>& chosen) {
  for (const Object& object : chosen) add(object, true);
  // The units and contexts, also of what no relationship leads from to the project.
  for (const step::NumberedEntity& instance : m_instances)
    if (const auto project = fc::fcCast<FcProject>(instance.entity)) add(project, false);
  while (!m_waiting.empty()) {
    const Object object = std::move(m_waiting.back());
    m_waiting.pop_back();
    addAbove(object);
    if (m_withParts.contains(object.get())) addParts(object);
  }
}

bool ModelExtract::add(const Object& object, bool withParts) {
  if (!object) return false;
  const bool isNew = m_included.insert(object.get()).second;
  const bool hasNewParts = withParts && m_withParts.insert(object.get()).second;
  if (isNew) m_objects.push_back(object);
  if (isNew || hasNewParts) m_waiting.push_back(object);
  return isNew;
}

void ModelExtract::addAbove(const Object& object) {
  if (const auto relation = object->Decomposes().lock()) add(relation->RelatingObject(), false);
  if (const auto relation = object->Nests().lock()) add(relation->RelatingObject(), false);
  if (const auto relation = object->HasContext().lock()) add(relation->RelatingContext(), false);
  if (const auto occurrence = fc::fcCast<FcObject>(object)) add(occurrence->typeBaseGet(), false);
  if (const auto element = fc::fcCast<FcElement>(object))
    if (const auto relation = element->ContainedInStructure().lock())
      add(relation->RelatingStructure(), false);
  if (const auto opening = fc::fcCast<FcFeatureElementSubtraction>(object))
    if (const auto relation = opening->VoidsElements().lock())
      add(relation->RelatingBuildingElement(), false);
  if (const auto projection = fc::fcCast<FcFeatureElementAddition>(object))
    if (const auto relation = projection->ProjectsElements().lock())
      add(relation->RelatingElement(), false);
}

void ModelExtract::addParts(const Object& object) {
  const auto element = fc::fcCast<FcElement>(object);
  if (!element) return;
  for (const auto& relation : element->IsDecomposedBy().lock())
    for (const auto& part : relation->RelatedObjects()) add(part, true);
  for (const auto& relation : element->IsNestedBy().lock())
    for (const auto& part : relation->RelatedObjects()) add(part, true);
  for (const auto& relation : element->HasOpenings().lock())
    add(relation->RelatedOpeningElement(), true);
  for (const auto& relation : element->HasProjections().lock())
    add(relation->RelatedFeatureElement(), true);
}

// Those of properties first: others may join sets.
void ModelExtract::copyRelationships() {
  for (const bool ofProperties : {true, false}) {
    for (const step::NumberedEntity& instance : m_instances) {
      const auto relation = fc::fcCast<FcRelationship>(instance.entity);
      if (relation && (fc::fcCast<FcRelDefinesByProperties>(relation) != nullptr) == ofProperties &&
          joinsCopies(*relation))
        copyReduced(relation);
    }
  }
}

/// All objects that it names singly are copied, and of each list that it has one at least.
bool ModelExtract::joinsCopies(const Relationship& relation) const {
  bool joins = true;
  relation.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    const bool isList = isListOfEntities(attribute);
    bool anyCopied = false;
    bool any = false;
    attribute.type->forEachEntity(attribute.of(relation), [&](fc::FcBase& entity) {
      const bool isNeeded = isList || fc::fcCast<FcObjectDefinition>(&entity);
      any = any || isNeeded;
      anyCopied = anyCopied || (isNeeded && isCopied(&entity));
    });
    joins = joins && (anyCopied || !any);
  });
  return joins;
}

void ModelExtract::copyReduced(const std::shared_ptr<fc::FcBase>& entity) {
  if (isCopied(entity.get())) return;
  const std::shared_ptr<fc::FcBase> copy = entity->classInfo().create();
  m_settings.copiedEntities.emplace(entity.get(), copy);
  m_target->entityAdd(copy, false);
  entity->classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    if (!isListOfEntities(attribute)) {
      attribute.type->assign(attribute.of(*copy), attribute.of(*entity), m_settings);
      return;
    }
    LocalValue members{LocalValue::List()};
    attribute.type->forEachEntity(attribute.of(*entity), [&](fc::FcBase& member) {
      const auto known = m_settings.copiedEntities.find(&member);
      if (known != m_settings.copiedEntities.end())
        std::get<LocalValue::List>(members.value).emplace_back(known->second);
    });
    attribute.type->setLocalValue(attribute.of(*copy), members);
  });
  copy->updateInverseAttributes();
  drainQueue();
}

void ModelExtract::copyDependents() {
  // In the order of the file, again and again while there are further ones: materials have styles,
  // and these may have materials.
  for (std::size_t before = 0; before != m_settings.copiedEntities.size();) {
    before = m_settings.copiedEntities.size();
    for (const step::NumberedEntity& instance : m_instances) {
      if (!isCopied(instance.entity.get())) continue;
      forEachDependent(*instance.entity, [&](fc::FcBase& dependent) {
        if (!isCopied(&dependent)) dependent.deepCopy(m_settings);
      });
    }
  }
}

void ModelExtract::copyLayers() {
  for (const step::NumberedEntity& instance : m_instances) {
    const auto layer = fc::fcCast<FcPresentationLayerAssignment>(instance.entity);
    if (!layer) continue;
    const fc::AttributeInfo& items = *layer->classInfo().findAttribute("AssignedItems");
    bool any = false;
    items.type->forEachEntity(items.of(*layer),
                              [&](fc::FcBase& item) { any = any || isCopied(&item); });
    if (any) copyReduced(layer);
  }
}

bool ModelExtract::isCopied(const fc::FcBase* entity) const {
  return entity && m_settings.copiedEntities.find(entity) != m_settings.copiedEntities.end();
}

// A copy that is known already is answered at once; what waits is filled.
void ModelExtract::drainQueue() {
  if (!m_objects.empty()) m_objects.front()->deepCopy(m_settings);
}

std::vector<step::NumberedEntity> ModelExtract::numbers() const {
  std::vector<step::NumberedEntity> numbers;
  for (const step::NumberedEntity& instance : m_instances) {
    const auto known = m_settings.copiedEntities.find(instance.entity.get());
    if (instance.entity && known != m_settings.copiedEntities.end())
      numbers.push_back({instance.number, known->second});
  }
  return numbers;
}

}  // namespace qor::host::cli
