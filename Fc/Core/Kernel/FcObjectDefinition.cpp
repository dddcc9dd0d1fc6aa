#include "Fc/Core/Kernel/FcObjectDefinition.h"

#include "Fc/Core/Kernel/FcContext.h"
#include "Fc/Core/Kernel/FcObject.h"
#include "Fc/Core/Kernel/FcRelAggregates.h"
#include "Fc/Core/Kernel/FcRelNests.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Core/Kernel/PropertySetAttachment.h"
#include "Fc/Core/ProductExtension/FcElementQuantity.h"
#include "Fc/Core/ProductExtension/FcElementType.h"
#include "Fc/Core/ProductExtension/Pset_BuildingCommon.h"
#include "Fc/Data.h"
#include "Fc/Drawing/FcGenerateParams.h"

namespace qor::fc::core::kernel {

using productextension::FcElementQuantity;
using productextension::FcElementType;
using productextension::Pset_BuildingCommon;

namespace {

constexpr const char* userDefined = "USERDEFINED";

// The first relationship of an inverse set; a new one of the model where there is none.
template <class Relation>
std::shared_ptr<Relation> relationOf(const InverseSet<Relation>& existing, Data& data,
                                     const std::shared_ptr<FcObjectDefinition>& whole,
                                     const std::function<void(Relation&)>& initialise) {
  if (auto found = existing.lockFirst()) return found;
  auto relation = data.create<Relation>();
  relation->setGlobalId(Guid::generate());
  relation->setRelatingObject(whole);
  if (initialise) initialise(*relation);
  return relation;
}

}  // namespace

void FcObjectDefinition::doGenerate(FcGenerateParams& params) const {
  std::vector<std::shared_ptr<const FcRoot>> parts;
  IsDecomposedBy().forEach([&parts](const std::shared_ptr<FcRelAggregates>& relation) {
    parts.insert(parts.end(), relation->RelatedObjects().begin(), relation->RelatedObjects().end());
  });
  if (!parts.empty()) params.afterwards(std::move(parts));
}

std::shared_ptr<FcObjectDefinition> FcObjectDefinition::self() {
  return std::static_pointer_cast<FcObjectDefinition>(shared_from_this());
}

std::shared_ptr<FcRelAggregates> FcObjectDefinition::aggregatesConnect(
    Data& data, std::shared_ptr<FcObjectDefinition> part) {
  auto relation = relationOf<FcRelAggregates>(IsDecomposedBy(), data, self(), {});
  relation->insertRelatedObjects(std::move(part));
  return relation;
}

std::shared_ptr<FcRelAggregates> FcObjectDefinition::decomposeConnect(
    Data& data, FcObjectDefinition& part, const std::function<void(FcRelAggregates&)>& initialise) {
  auto relation = relationOf(IsDecomposedBy(), data, self(), initialise);
  relation->insertRelatedObjects(part.self());
  return relation;
}

std::shared_ptr<FcRelNests> FcObjectDefinition::nestConnect(
    Data& data, FcObjectDefinition& part, const std::function<void(FcRelNests&)>& initialise) {
  auto relation = relationOf(IsNestedBy(), data, self(), initialise);
  relation->pushBackRelatedObjects(part.self());
  return relation;
}

std::string FcObjectDefinition::predefinedTypeAsString() const {
  return getAttributeAsString("PredefinedType").value_or("");
}

bool FcObjectDefinition::storePredefinedType(const std::string& text) {
  if (setAttributeFromString("PredefinedType", text)) return true;
  setAttributeFromString("PredefinedType", userDefined);
  return false;
}

void FcObjectDefinition::setPredefinedTypeFromString(const std::string& text) {
  storePredefinedType(text);
}

std::string FcObjectDefinition::predefinedTypeDerived() const {
  std::string own = predefinedTypeAsString();
  const auto* object = fcCast<FcObject>(this);
  const auto type = own.empty() && object ? object->getTypeObject() : nullptr;
  return type ? type->predefinedTypeDerived() : own;
}

std::optional<std::string> FcObjectDefinition::userDefinedTypeDerived() const {
  const auto* object = fcCast<FcObject>(this);
  if (predefinedTypeAsString() == userDefined) {
    if (object) return object->ObjectType();
    const auto* type = fcCast<FcElementType>(this);
    return type ? type->ElementType() : std::nullopt;
  }
  const auto type = object ? object->getTypeObject() : nullptr;
  return type ? type->userDefinedTypeDerived() : std::nullopt;
}

template <class T>
std::vector<std::shared_ptr<const T>> FcObjectDefinition::getPropertySetDefinitions() const {
  std::vector<std::shared_ptr<const T>> sets;
  forEachPropertySet(*this, [&sets](const PropertySetAttachment& attachment) {
    if (auto set = fcCast<T>(attachment.set)) sets.push_back(std::move(set));
    return false;
  });
  return sets;
}

template <class T>
std::shared_ptr<T> FcObjectDefinition::getPropertySetDefinitionNonConst(
    const std::string& name) const {
  std::shared_ptr<T> found;
  if constexpr (std::is_base_of_v<PropertySetView, T>) {
    auto set = getPropertySetDefinitionNonConst<FcPropertySet>(name);
    if (set) found = std::make_shared<T>(std::move(set));
  } else {
    forEachPropertySet(*this, [&](const PropertySetAttachment& attachment) {
      if (attachment.set->Name() == name) found = fcCast<T>(attachment.set);
      return found != nullptr;
    });
  }
  return found;
}

template <class T>
std::shared_ptr<T> FcObjectDefinition::getOrCreatePropertySetDefinition(Data& data,
                                                                        const std::string& name) {
  if (auto* object = fcCast<FcObject>(this))
    return object->getOrCreatePropertySetDefinition<T>(data, name, {}, {});
  if (auto* type = fcCast<FcTypeObject>(this))
    return type->getOrCreatePropertySetDefinition<T>(data, name, {});
  if (auto* context = fcCast<FcContext>(this))
    return context->getOrCreatePropertySetDefinition<T>(data, name, {}, {});
  return nullptr;
}

bool FcObjectDefinition::deletePropertySetDefinition(const std::string& name) {
  std::optional<PropertySetAttachment> found;
  forEachPropertySet(*this, [&](const PropertySetAttachment& attachment) {
    if (attachment.set->Name() == name) found = attachment;
    return found.has_value();
  });
  if (!found) return false;
  detachPropertySet(self(), *found);
  return true;
}

template QOR_API std::vector<std::shared_ptr<const FcPropertySetDefinition>>
FcObjectDefinition::getPropertySetDefinitions() const;
template QOR_API std::vector<std::shared_ptr<const FcPropertySet>>
FcObjectDefinition::getPropertySetDefinitions() const;
template QOR_API std::vector<std::shared_ptr<const FcElementQuantity>>
FcObjectDefinition::getPropertySetDefinitions() const;
template QOR_API std::shared_ptr<FcPropertySetDefinition>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string&) const;
template QOR_API std::shared_ptr<FcPropertySet>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string&) const;
template QOR_API std::shared_ptr<FcElementQuantity>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string&) const;
template QOR_API std::shared_ptr<Pset_BuildingCommon>
FcObjectDefinition::getPropertySetDefinitionNonConst(const std::string&) const;
template QOR_API std::shared_ptr<FcPropertySet>
FcObjectDefinition::getOrCreatePropertySetDefinition(Data&, const std::string&);
template QOR_API std::shared_ptr<FcElementQuantity>
FcObjectDefinition::getOrCreatePropertySetDefinition(Data&, const std::string&);

}  // namespace qor::fc::core::kernel
