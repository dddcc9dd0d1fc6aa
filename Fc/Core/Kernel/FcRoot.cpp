#include "Fc/Core/Kernel/FcRoot.h"

#include "Fc/FcCopySettings.h"

namespace qor::fc::core::kernel {

void FcRoot::doAssign(const FcBase& source, FcCopySettings& settings) {
  FcBase::doAssign(source, settings);
  if (settings.generateNewGuids) setGlobalId(Guid::generate());
}

}  // namespace qor::fc::core::kernel
