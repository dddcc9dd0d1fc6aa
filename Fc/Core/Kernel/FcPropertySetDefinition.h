#pragma once

#include <memory>
#include <string_view>

#include "Fc/Core/Kernel/FcPropertySetDefinitionAttributes.h"

namespace qor::fc {
class Data;
}

namespace qor::fc::core::kernel {

/// IfcPropertySetDefinition, Core.Kernel: a set of properties or quantities. Occurrences and
/// contexts have it by a relationship, types by their own list, and any number of them may share
/// it.
class QOR_API FcPropertySetDefinition : public FcPropertySetDefinitionAttributes {
 public:
  /// Empties the set. Takes what only this set used off the list of `data`.
  virtual void deleteAllProperties(Data& data);
  /// A name of other letters or in another case is another name.
  virtual bool hasPropertyOrQuantity(std::string_view name) const;
  /// The first property or quantity of that name; null for none.
  virtual std::shared_ptr<FcBase> getPropertyAsFcBase(std::string_view name) const;

  /// Detaches the set from all types, occurrences and contexts, takes the relationships that are
  /// left without a set off the list of `data`, and empties the set. The set itself stays listed.
  void deletePset(Data& data);

 protected:
  FcPropertySetDefinition() = default;
};

}  // namespace qor::fc::core::kernel
