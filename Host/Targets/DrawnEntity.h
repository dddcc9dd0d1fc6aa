#pragma once

#include <string>

#include "Fc/FcBase.h"
#include "Qor/Object/ObjectInterface.h"

namespace qor::host::targets {

/// The entity that a target is told of in `startObject`; null for an object of another kind.
const fc::FcBase* drawnEntity(const generate::ObjectInterface* object);

/// The guid of a root, of 22 characters; empty for any other entity.
std::string guidText(const fc::FcBase& entity);

/// The name of a root as the model has it; empty when it has none, and for any other entity.
std::string nameText(const fc::FcBase& entity);

}  // namespace qor::host::targets
