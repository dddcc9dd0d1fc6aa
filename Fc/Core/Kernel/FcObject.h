#pragma once

#include "Fc/Core/Kernel/FcObjectAttributes.h"
#include "Qor/Id/Guid.h"
#include "Qor/String/StringHash.h"

namespace qor::fc::core::kernel {

class FcPropertySetDefinition;
class FcTypeObject;

/// IfcObject, Core.Kernel: an occurrence, which may have a type.
class QOR_API FcObject : public FcObjectAttributes {
 public:
  /// Gives the object the type with that guid and answers it. Where the model has no such type,
  /// `makeType`, which must be callable, makes it. An assert, null and no change when what it makes
  /// has another guid. A type that the object had before goes on naming it: meant for objects
  /// without a type.
  std::shared_ptr<FcTypeObject> typeSet(
      Data& data, const Guid& typeGuid,
      const std::function<std::shared_ptr<FcTypeObject>()>& makeType);
  /// The same with a type of the class with that name ("IfcWallType"), which is listed before
  /// `initialise` is called with it.
  std::shared_ptr<FcTypeObject> typeSet(Data& data, const StringHash& ifcName, const Guid& typeGuid,
                                        const std::function<void(FcTypeObject&)>& initialise = {});
  /// Null without a type.
  std::shared_ptr<const FcTypeObject> getTypeObject() const;
  std::shared_ptr<FcTypeObject> typeBaseGet();
  static std::shared_ptr<FcBase> getSharedPtrFromTypeObject(FcTypeObject& type);

  /// A text that is none of the enumeration's goes into `ObjectType`.
  void setPredefinedTypeFromString(const std::string& text) override;

  using FcObjectDefinition::getOrCreatePropertySetDefinition;
  /// `initialiseSet` and `initialiseRelation` may be empty; each is called for what is made anew.
  template <class T>
  std::shared_ptr<T> getOrCreatePropertySetDefinition(
      Data& data, const std::string& name, const std::function<void(T&)>& initialiseSet,
      const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation);
  /// Attaches the set. One that defines other occurrences already is shared by its relationship;
  /// else a relationship is made, and `initialiseRelation` called with it once it names the set.
  void propertySetAdd(
      Data& data, std::shared_ptr<FcPropertySetDefinition> set,
      const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation = {});

 protected:
  FcObject() = default;
};

}  // namespace qor::fc::core::kernel
