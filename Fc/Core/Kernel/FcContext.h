#pragma once

#include "Fc/Core/Kernel/FcContextAttributes.h"
#include "Fc/Resource/Measure/FcDerivedUnitEnum.h"
#include "Fc/Resource/Measure/FcUnitEnum.h"
#include "Fc/Resource/Representation/FcGeometricProjectionEnum.h"
#include "Qor/Draw/IfcGeometricRepresentationContextEnum.h"

namespace qor::fc::resource::measure {
class FcDerivedUnit;
class FcNamedUnit;
}  // namespace qor::fc::resource::measure
namespace qor::fc::resource::representation {
class FcGeometricRepresentationContext;
class FcGeometricRepresentationSubContext;
}  // namespace qor::fc::resource::representation

namespace qor::fc::core::kernel {

class FcPropertySetDefinition;

/// IfcContext, Core.Kernel: what a model, or a library of parts of models, declares for all that is
/// in it: units, representation contexts, objects.
class QOR_API FcContext : public FcContextAttributes {
 public:
  using IfcGeometricRepresentationContextEnum =
      generate::draw::IfcGeometricRepresentationContextEnum;
  using ContextType = IfcGeometricRepresentationContextEnum::ContextType;
  using ModelContextIdentifier = IfcGeometricRepresentationContextEnum::ModelContextIdentifier;
  using SubContext = resource::representation::FcGeometricRepresentationSubContext;

  /// The first unit of that kind; null for none. Numbers in the model are SI whatever it says.
  std::shared_ptr<const resource::measure::FcNamedUnit> namedUnitGet(
      resource::measure::FcUnitEnum kind) const;
  std::shared_ptr<const resource::measure::FcDerivedUnit> derivedUnitGet(
      resource::measure::FcDerivedUnitEnum kind) const;

  /// The sub-context with that identifier below the first context of that type; null for none.
  /// Texts are compared exactly, and no further context of the type is looked at.
  std::shared_ptr<SubContext> representationContextGet(ContextType type,
                                                       const std::string& identifier) const;
  std::shared_ptr<SubContext> representationContextGet(ModelContextIdentifier identifier) const;
  /// The same; context and sub-context are made and listed where they are missing. A new context
  /// has two dimensions for Plan and three otherwise, precision 1e-5 m and the identity as its
  /// frame. A new sub-context shows `targetView`; NOTDEFINED becomes MODEL_VIEW for Model and
  /// PLAN_VIEW for Plan, and is an assert for any other type.
  std::shared_ptr<SubContext> representationContextGetOrAdd(
      Data& data, ContextType type, const std::string& identifier,
      resource::representation::FcGeometricProjectionEnum targetView);

  /// Declares the object by the relationship that this context has already, or a new one, which
  /// `initialise` is called with. Null, and nothing declared, when the relationship that it had has
  /// died. Throws `std::bad_weak_ptr` when no `std::shared_ptr` holds the object.
  std::shared_ptr<FcRelDeclares> hasContextConnect(
      Data& data, FcObjectDefinition& object,
      const std::function<void(FcRelDeclares&)>& initialise = {});

  using FcObjectDefinition::getOrCreatePropertySetDefinition;
  /// `initialiseSet` and `initialiseRelation` may be empty; each is called for what is made anew.
  template <class T>
  std::shared_ptr<T> getOrCreatePropertySetDefinition(
      Data& data, const std::string& name, const std::function<void(T&)>& initialiseSet,
      const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation);
  /// Attaches the set by a relationship of its own, which `initialiseRelation` is called with
  /// before it names the set.
  void propertySetAdd(
      Data& data, std::shared_ptr<FcPropertySetDefinition> set,
      const std::function<void(FcRelDefinesByProperties&)>& initialiseRelation = {});

 protected:
  FcContext() = default;

 private:
  using Context = resource::representation::FcGeometricRepresentationContext;

  std::shared_ptr<resource::representation::FcRepresentationContext> firstContext(
      const std::string& type) const;
  std::shared_ptr<Context> addContext(Data& data, ContextType type);
};

}  // namespace qor::fc::core::kernel
