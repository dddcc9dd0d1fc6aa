#pragma once

#include "Fc/Core/Kernel/FcTypeObjectAttributes.h"

namespace qor::fc::core::kernel {

class FcObject;

/// IfcTypeObject, Core.Kernel: what a number of occurrences have in common.
class QOR_API FcTypeObject : public FcTypeObjectAttributes {
 public:
  /// Makes the object one of this type, by the relationship that the type has already or a new one.
  /// A type that the object had before goes on naming it.
  std::shared_ptr<FcRelDefinesByType> IsTypedByConnect(
      Data& data, FcObject& object,
      const std::function<void(FcRelDefinesByType&)>& initialise = {});

  using FcObjectDefinition::getOrCreatePropertySetDefinition;
  /// As the form without `initialiseSet`, which is called for a new set. The model is the type's
  /// own; `data` isn't used.
  template <class T>
  std::shared_ptr<T> getOrCreatePropertySetDefinition(Data& data, const std::string& name,
                                                      const std::function<void(T&)>& initialiseSet);
};

}  // namespace qor::fc::core::kernel
