#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Fc/Core/Kernel/FcObjectDefinitionAttributes.h"

namespace qor::classification {
class ClassificationInterface;
}
namespace qor::fc {
class Data;
}
namespace qor::fc::resource::externalreference {
class FcClassification;
class FcClassificationReference;
}  // namespace qor::fc::resource::externalreference
namespace qor::fc::shared::buildingserviceelements {
class FcDistributionPort;
}

namespace qor::fc::core::kernel {

class FcRelAggregates;
class FcRelNests;

/// IfcObjectDefinition, Core.Kernel: an occurrence, a type or a context, and what a host builds a
/// model of them with.
///
/// An operation named `...Connect` puts the given part into the relationship of its kind that this
/// object has already, of several into the first, and makes and lists one where there is none;
/// `initialise` is then called with the new relationship, if it is given. All need objects that a
/// `std::shared_ptr` holds, and throw `std::bad_weak_ptr` otherwise.
class QOR_API FcObjectDefinition : public FcObjectDefinitionAttributes {
 public:
  std::shared_ptr<FcRelAggregates> aggregatesConnect(Data& data,
                                                     std::shared_ptr<FcObjectDefinition> part);
  std::shared_ptr<FcRelAggregates> decomposeConnect(
      Data& data, FcObjectDefinition& part,
      const std::function<void(FcRelAggregates&)>& initialise = {});
  /// A part that is nested twice stands twice in the list.
  std::shared_ptr<FcRelNests> nestConnect(Data& data, FcObjectDefinition& part,
                                          const std::function<void(FcRelNests&)>& initialise = {});

  /// The `PredefinedType` as text; empty for a class that has none and while it is absent.
  virtual std::string predefinedTypeAsString() const;
  /// Sets the enumerator of that name. A text that is none of the enumeration's makes the type
  /// USERDEFINED and is kept where the class has an attribute for it.
  virtual void setPredefinedTypeFromString(const std::string& text);
  /// The predefined type, of an occurrence without one that of its type.
  std::string predefinedTypeDerived() const;
  /// What the user calls the type where that is USERDEFINED: the object's own text, or that of an
  /// occurrence's type.
  std::optional<std::string> userDefinedTypeDerived() const;

  /// Classifies the object under the last of `codes`, each of which is made a child of the one
  /// before it, the first of the system's classification. What the model has already (the
  /// classification by name, references by code, the relationship) is used again. Without codes
  /// only the classification is made. An assert and null without a system or a model. Linear in
  /// the number of classification references for each code.
  std::shared_ptr<resource::externalreference::FcClassification> classify(
      std::shared_ptr<classification::ClassificationInterface> system,
      const std::vector<std::string>& codes);
  /// The reference that the object is associated with under the system of that name; null for none.
  std::shared_ptr<const resource::externalreference::FcClassificationReference> getClassification(
      const classification::ClassificationInterface& system) const;
  /// The reference and its classification stay in the model.
  void removeClassification(const classification::ClassificationInterface& system);

  /// A new reference of class `T`, associated with this object by a new relationship. `T` is
  /// `FcClassificationReference`, `FcDocumentReference` or `FcLibraryReference`. An assert and null
  /// for an object that is in no model.
  template <class T>
  std::shared_ptr<T> createExternalReference(std::optional<std::string> location,
                                             std::optional<std::string> identification,
                                             std::string name);

  /// The ports that are nested in this object, in the order of their relationships.
  virtual std::vector<std::shared_ptr<const shared::buildingserviceelements::FcDistributionPort>>
  getDistributionPorts() const;

  // Property sets. An occurrence and a context have them by relationships, a type by its own list;
  // of an occurrence the sets of its type are no part. Names are compared exactly, and a set
  // without one isn't found by name. `T` is `FcPropertySetDefinition`, `FcPropertySet` or
  // `FcElementQuantity`.

  /// As often as they are attached.
  template <class T>
  std::vector<std::shared_ptr<const T>> getPropertySetDefinitions() const;
  /// The first set of that name; null for none. `T` may also be a typed view
  /// (`Pset_BuildingCommon`, `Pset_ElectricalDeviceCommon`), which is then made for the set.
  template <class T>
  std::shared_ptr<T> getPropertySetDefinitionNonConst(const std::string& name) const;
  /// The set of that name; where there is none, a new one that is listed and attached. A type lists
  /// it in its own model, in none when it has none. `T` is `FcPropertySet` or `FcElementQuantity`.
  template <class T>
  std::shared_ptr<T> getOrCreatePropertySetDefinition(Data& data, const std::string& name);
  /// Detaches the set of that name from this object alone; false when there is none. The set and
  /// its relationship stay in the model. Where the relationship holds further sets, the object
  /// keeps those by a relationship of its own.
  bool deletePropertySetDefinition(const std::string& name);

 protected:
  FcObjectDefinition() = default;
  /// The parts that it is made of, relationship by relationship.
  void doGenerate(FcGenerateParams& params) const override;

  /// False when the text is none of the enumeration's; the type is then USERDEFINED.
  bool storePredefinedType(const std::string& text);
  /// This object as the model holds it.
  std::shared_ptr<FcObjectDefinition> self();
};

}  // namespace qor::fc::core::kernel
