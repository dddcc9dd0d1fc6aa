#include "Fc/FcBase.h"

#include "Fc/FcVisitorBase.h"
#include "Fc/FcVisitorBaseNonConst.h"
#include "Fc/Localize.h"
#include "Fc/Property.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/InverseEntries.h"
#include "Fc/Reflection/Links.h"

namespace qor::fc {

namespace {

std::string localizedAttribute(const ClassInfo& info, const std::string& name,
                               std::string_view suffix) {
  const ClassInfo* owner = info.declaringClass(name);
  if (!owner) return {};
  std::string key(owner->name.view());
  key += '.';
  key += name;
  key += suffix;
  return localizeWithFallback(key, name);
}

void linkAll(FcBase& holder, const ClassInfo& info) {
  if (!info.linksTargets) return;
  if (info.parent) linkAll(holder, *info.parent);
  for (const AttributeInfo& attribute : info.attributes) linkTargets(holder, attribute);
}

}  // namespace

void FcBase::accept(FcVisitorBase& visitor) const { visitor.visit(*this); }

void FcBase::accept(FcVisitorBaseNonConst& visitor) { visitor.visit(*this); }

bool FcBase::setAttributeFromString(const std::string& name, const std::string& value) {
  const AttributeInfo* attribute = classInfo().findAttribute(name);
  return attribute && attribute->type->setFromString(attribute->of(*this), value);
}

std::optional<std::string> FcBase::getAttributeAsString(const std::string& name) const {
  const AttributeInfo* attribute = classInfo().findAttribute(name);
  return attribute ? attribute->type->getAsString(attribute->of(*this)) : std::nullopt;
}

void FcBase::updateInverseAttributes() { linkAll(*this, classInfo()); }

void FcBase::clearInverseAttributes() {
  classInfo().forEachInverseAttribute([this](const AttributeInfo& attribute) {
    static_cast<InverseEntries*>(attribute.of(*this))->clear();
  });
}

void FcBase::forEachEntity(const EntityCallback& callback, bool followInverse) {
  if (!callback) throw std::bad_function_call();
  const auto walk = [&](const AttributeInfo& attribute) {
    attribute.type->forEachEntity(attribute.of(std::as_const(*this)), [&](FcBase& entity) {
      callback(entity.shared_from_this(), attribute.id());
    });
  };
  classInfo().forEachAttributeByClass(walk, [&](const AttributeInfo& attribute) {
    if (followInverse) walk(attribute);
  });
}

LocalValue FcBase::getLocalValue(const object::PropertyId& id) const {
  const AttributeInfo* attribute = classInfo().findAttribute(id.name());
  if (!attribute) attribute = classInfo().findInverseAttribute(id.name());
  return attribute ? attribute->type->getLocalValue(attribute->of(*this)) : LocalValue();
}

bool FcBase::setLocalValue(LocalValue value, const object::PropertyId& id) {
  const AttributeInfo* attribute = classInfo().findAttribute(id.name());
  if (!attribute) return false;
  void* member = attribute->of(*this);
  if (attribute->links.empty()) return attribute->type->setLocalValue(member, value);

  std::vector<std::shared_ptr<FcBase>> before;
  attribute->type->forEachTarget(
      member, [&before](FcBase& target) { before.push_back(target.shared_from_this()); });
  if (!attribute->type->setLocalValue(member, value)) return false;
  for (const auto& target : before) unlinkTarget(*this, *attribute, *target);
  linkTargets(*this, *attribute);
  return true;
}

bool FcBase::isOptional(const object::PropertyId& id) const {
  const AttributeInfo* attribute = classInfo().findAttribute(id.name());
  return attribute && attribute->optional;
}

std::string FcBase::getPropertyName(const object::PropertyId& id) const {
  return localizedAttribute(classInfo(), id.name(), {});
}

std::string FcBase::getPropertyDescription(const object::PropertyId& id) const {
  return localizedAttribute(classInfo(), id.name(), "_Description");
}

std::vector<std::shared_ptr<Property>> FcBase::getLocalProperties() const {
  const std::shared_ptr<FcBase> self = std::const_pointer_cast<FcBase>(shared_from_this());
  std::vector<std::shared_ptr<Property>> properties;
  classInfo().forEachAttribute([&](const AttributeInfo& attribute) {
    if (!attribute.type->entitiesOnly)
      properties.push_back(std::make_shared<Property>(attribute.id(), self));
  });
  return properties;
}

bool FcBase::hasEnumeratedValues(const object::PropertyId& id) const {
  const AttributeInfo* attribute = classInfo().findAttribute(id.name());
  return attribute && attribute->type->family == TypeFamily::enumeration;
}

std::vector<std::string> FcBase::getEnumeratedValues(const object::PropertyId& id) const {
  if (!hasEnumeratedValues(id)) return {};
  const auto names = classInfo().findAttribute(id.name())->type->enumeration->names;
  return {names.begin(), names.end()};
}

}  // namespace qor::fc
