#pragma once

#include "Qor/Draw/DrawInterfaceBase.h"
#include "Qor/Draw/GenerateInterface.h"

namespace qor::generate::draw {

/// A target that knows objects and materials.
class QOR_API DrawInterface : public virtual DrawInterfaceBase, public GenerateInterface {};

}  // namespace qor::generate::draw
