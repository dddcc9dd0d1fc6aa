#pragma once

#include "Fc/Resource/Actor/FcPersonAttributes.h"

namespace qor::fc::resource::actor {

/// IfcPerson, Resource.Actor.
class QOR_API FcPerson : public FcPersonAttributes {
 public:
  /// Given, middle and family names, with a blank in front of each but the given one, also where
  /// that is absent.
  std::string getFullName(bool withMiddleNames) const;
};

}  // namespace qor::fc::resource::actor
