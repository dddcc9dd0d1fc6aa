#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/LocalValue.h"
#include "Qor/Object/ObjectInterface.h"
#include "Qor/Object/PropertyId.h"
#include "Qor/Platform/Export.h"
#include "Qor/String/StringHash.h"
#include "Qor/Unit/QuantityPresentationBase.h"

namespace qor::fc {

class Data;
class FcCopySettings;
class FcVisitorBase;
class FcVisitorBaseNonConst;
class Property;
struct SkipAttributeParams;

/// The root of all schema classes: every instance of an IFC entity is an object of a class below
/// it, held by a `std::shared_ptr` that `std::make_shared` made.
///
/// What a class knows of its attributes stands in constant tables (`ClassInfo`), on which the
/// operations here work once for all classes. Those that take an attribute's name compare it
/// exactly along the chain of classes, which is for tools and user interfaces; hot code uses the
/// typed accessors, readers and writers the tables themselves.
///
/// Forward attributes own what they name, inverse attributes are weak. Nothing here is locked:
/// several threads may read an entity that nobody changes.
class QOR_API FcBase : public generate::ObjectInterface,
                       public std::enable_shared_from_this<FcBase> {
 public:
  using EntityCallback =
      std::function<void(const std::shared_ptr<FcBase>&, const object::PropertyId&)>;

  FcBase() = default;
  FcBase(const FcBase&) = delete;
  FcBase& operator=(const FcBase&) = delete;
  ~FcBase() override = default;

  /// The record of the dynamic class.
  virtual const ClassInfo& classInfo() const = 0;

  const char* ifcNameUpper() const { return classInfo().upperName.text; }  ///< "IFCWALL"
  const char* ifcName() const { return classInfo().name.text; }            ///< "IfcWall"
  StringHash ifcNameUpperHash() const { return classInfo().upperName; }
  StringHash ifcNameHash() const { return classInfo().name; }
  const char* schemaGroup() const { return classInfo().group; }  ///< "Building Elements"
  const char* schemaGroupPath() const {
    return classInfo().groupPath;
  }  ///< "Shared.Building Elements"
  std::uint32_t classId() const { return classInfo().classId; }
  std::uint32_t classIdLast() const { return classInfo().classIdLast; }

  /// Visits this entity as its own class, then as each supertype while the visitor answers true.
  virtual void accept(FcVisitorBase& visitor) const;
  virtual void accept(FcVisitorBaseNonConst& visitor);

  /// The text forms: numbers as "%f", "true", an enumerator's name, "(a, b)" for a list. Reading
  /// gives nothing for an unknown or absent attribute. Setting gives false for a text that isn't
  /// one of the attribute's type, after an absent attribute has become present with its default.
  /// References have no text form: an assert, and nothing or false.
  virtual bool setAttributeFromString(const std::string& name, const std::string& value);
  virtual std::optional<std::string> getAttributeAsString(const std::string& name) const;

  /// Writes this entity into the inverse attributes of all that its forward attributes name.
  /// Removes nothing. Throws `std::bad_weak_ptr` when no `std::shared_ptr` holds this entity and
  /// there is something to write.
  virtual void updateInverseAttributes();
  /// Empties the inverse attributes of this entity.
  virtual void clearInverseAttributes();

  /// Calls back for each entity that this one refers to, supertypes' attributes first, in schema
  /// order, with `followInverse` also for each that refers to this one. `callback` must be
  /// callable.
  virtual void forEachEntity(const EntityCallback& callback, bool followInverse);

  /// The value with its kind; see `LocalValueBase`. Inverse attributes can be read, not written.
  virtual LocalValue getLocalValue(const object::PropertyId& id) const;
  /// False, and no change, for an unknown attribute or a value of another kind. The empty value
  /// clears. An unknown enumerator stores the last one, an entity of another class stores null,
  /// both with true. Inverse attributes are kept in step.
  virtual bool setLocalValue(LocalValue value, const object::PropertyId& id);

  virtual bool isOptional(const object::PropertyId& id) const;

  /// The SI number of an attribute of a measure type, whatever units the project names: models hold
  /// SI numbers. Empty for an absent or unknown attribute, a list, and any other type, selects
  /// included. `data` isn't read.
  virtual std::optional<double> getAttributeAsSiUnit(const Data& data,
                                                     const std::string& name) const;
  /// The attribute is a single number that can be shown with a unit, whether it has a value or not.
  virtual bool hasQuantityPresentationLocal(const object::PropertyId& id) const;
  /// The attribute with the default settings of its quantity: "2.500 m". Null for an absent one and
  /// where `hasQuantityPresentationLocal` answers false.
  virtual std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentationLocal(
      const object::PropertyId& id) const;

  /// The name for people, from the dictionaries of context "IFC" under "IfcWall.PredefinedType";
  /// without one the bare name. Empty for an unknown attribute.
  virtual std::string getPropertyName(const object::PropertyId& id) const;
  /// The same under "IfcWall.PredefinedType_Description".
  virtual std::string getPropertyDescription(const object::PropertyId& id) const;
  /// What an inspector shows: all forward attributes but references, supertypes' first. Throws
  /// `std::bad_weak_ptr` when no `std::shared_ptr` holds this entity.
  virtual std::vector<std::shared_ptr<Property>> getLocalProperties() const;
  virtual bool hasEnumeratedValues(const object::PropertyId& id) const;
  /// All enumerators of an attribute of enumeration type; empty for any other.
  virtual std::vector<std::string> getEnumeratedValues(const object::PropertyId& id) const;

  using SkipAttribute = std::function<bool(const SkipAttributeParams&)>;

  /// The order by class (`std::type_info::before`, which may differ from run to run) and then by
  /// the values of the forward attributes, supertypes' first, through references down the whole
  /// graph: a strict weak order, under which a copy equals its source. No tolerance; not a number
  /// stands behind all numbers. Each pair of entities is compared once, and a pair that meets
  /// itself again on a cycle counts as equal. Linear in what the two reach; no recursion.
  virtual bool isLessThan(const FcBase& other) const;
  virtual bool isEqualTo(const FcBase& other) const;
  /// The same without the attributes for which `skip` answers true; an empty function skips
  /// nothing.
  virtual bool isLessThanSkipAttributes(const FcBase& other, SkipAttribute skip) const;
  virtual bool isEqualToSkipAttributes(const FcBase& other, SkipAttribute skip) const;
  friend bool operator<(const FcBase& a, const FcBase& b) { return a.isLessThan(b); }

  /// A copy of this entity and all that it reaches by forward attributes, each entity once. Queue,
  /// no recursion.
  std::shared_ptr<FcBase> deepCopy() const;
  /// The same as part of a run: what `settings` knows already isn't copied again.
  std::shared_ptr<FcBase> deepCopy(FcCopySettings& settings) const;
  /// The copy of this entity, which may still be empty: known, supplied or queued by `settings`.
  std::shared_ptr<FcBase> allocateAndQueueCopy(FcCopySettings& settings) const;
  /// A new entity with the values of this one, the guid included, and no references.
  std::shared_ptr<FcBase> shallowCopy() const;

 protected:
  /// A new, empty entity of the same class.
  virtual std::shared_ptr<FcBase> doAllocateCopy() const;
  /// Takes over the forward attributes of `source`, an entity of the same class.
  virtual void doAssign(const FcBase& source, FcCopySettings& settings);
};

/// The entity as a `T`, or null when it is of another class or null itself. Two comparisons of
/// class ids, no run-time type check.
template <class T, class Base>
std::shared_ptr<T> fcCast(const std::shared_ptr<Base>& entity) {
  if (!entity) return nullptr;
  const std::uint32_t id = entity->classId();
  return id >= T::firstClassId && id < T::lastClassId + 1 ? std::static_pointer_cast<T>(entity)
                                                          : nullptr;
}
template <class T>
T* fcCast(FcBase* entity) {
  if (!entity) return nullptr;
  const std::uint32_t id = entity->classId();
  return id >= T::firstClassId && id < T::lastClassId + 1 ? static_cast<T*>(entity) : nullptr;
}
template <class T>
const T* fcCast(const FcBase* entity) {
  return fcCast<T>(const_cast<FcBase*>(entity));
}

}  // namespace qor::fc
