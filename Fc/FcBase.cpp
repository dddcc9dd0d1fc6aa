#include "Fc/FcBase.h"

#include "Fc/Data.h"
#include "Fc/FcCopySettings.h"
#include "Fc/FcVisitorBase.h"
#include "Fc/FcVisitorBaseNonConst.h"
#include "Fc/Model/Localize.h"
#include "Fc/Model/ValueAttributes.h"
#include "Fc/Property.h"
#include "Fc/Reflection/EntityComparison.h"
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

std::vector<std::shared_ptr<FcBase>> targetsOf(const FcBase& holder,
                                               const AttributeInfo& attribute) {
  std::vector<std::shared_ptr<FcBase>> targets;
  attribute.type->forEachTarget(attribute.of(holder), [&targets](FcBase& target) {
    targets.push_back(target.shared_from_this());
  });
  return targets;
}

// Keeps the inverse attributes in step with what `write` does to the attribute. A text that can't
// be read may leave a select changed all the same.
template <class Write>
bool writeLinked(FcBase& holder, const AttributeInfo& attribute, Write&& write) {
  if (attribute.links.empty()) return write();
  const auto before = targetsOf(holder, attribute);
  const bool written = write();
  if (!written && targetsOf(holder, attribute) == before) return false;
  for (const auto& target : before) unlinkTarget(holder, attribute, *target);
  linkTargets(holder, attribute);
  return written;
}

}  // namespace

void FcBase::accept(FcVisitorBase& visitor) const { visitor.visit(*this); }

void FcBase::accept(FcVisitorBaseNonConst& visitor) { visitor.visit(*this); }

bool FcBase::setAttributeFromString(const std::string& name, const std::string& value) {
  const AttributeInfo* attribute = classInfo().findAttribute(name);
  return attribute && writeLinked(*this, *attribute, [&] {
           return attribute->type->setFromString(attribute->of(*this), value);
         });
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
  return attribute && writeLinked(*this, *attribute, [&] {
           return attribute->type->setLocalValue(attribute->of(*this), value);
         });
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

bool FcBase::isLessThan(const FcBase& other) const {
  return EntityComparison().order(*this, other) < 0;
}

bool FcBase::isEqualTo(const FcBase& other) const {
  return EntityComparison().order(*this, other) == 0;
}

bool FcBase::isLessThanSkipAttributes(const FcBase& other, SkipAttribute skip) const {
  return EntityComparison(std::move(skip)).order(*this, other) < 0;
}

bool FcBase::isEqualToSkipAttributes(const FcBase& other, SkipAttribute skip) const {
  return EntityComparison(std::move(skip)).order(*this, other) == 0;
}

std::shared_ptr<FcBase> FcBase::deepCopy() const {
  FcCopySettings settings;
  return deepCopy(settings);
}

std::shared_ptr<FcBase> FcBase::deepCopy(FcCopySettings& settings) const {
  std::shared_ptr<FcBase> result = allocateAndQueueCopy(settings);
  while (!settings.copyQueue.empty()) {
    const auto [source, copy] = settings.copyQueue.back();
    settings.copyQueue.pop_back();
    copy->doAssign(*source, settings);
    copy->updateInverseAttributes();
  }
  return result;
}

std::shared_ptr<FcBase> FcBase::allocateAndQueueCopy(FcCopySettings& settings) const {
  const auto known = settings.copiedEntities.find(this);
  if (known != settings.copiedEntities.end() &&
      (!settings.reuseCheck || settings.reuseCheck(*this, *known->second)))
    return known->second;
  if (settings.externalCopy)
    if (std::shared_ptr<FcBase> external = settings.externalCopy(*this)) return external;

  std::shared_ptr<FcBase> copy = doAllocateCopy();
  settings.copiedEntities.emplace(this, copy);
  settings.copyQueue.emplace_back(this, copy.get());
  if (settings.target) settings.target->entityAdd(copy, false);
  return copy;
}

std::shared_ptr<FcBase> FcBase::shallowCopy() const {
  std::shared_ptr<FcBase> copy = doAllocateCopy();
  copyValueAttributes(*copy, *this);
  return copy;
}

std::shared_ptr<FcBase> FcBase::doAllocateCopy() const { return classInfo().create(); }

void FcBase::doAssign(const FcBase& source, FcCopySettings& settings) {
  classInfo().forEachAttribute([&](const AttributeInfo& attribute) {
    attribute.type->assign(attribute.of(*this), attribute.of(source), settings);
  });
}

}  // namespace qor::fc
