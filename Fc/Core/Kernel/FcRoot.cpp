#include "Fc/Core/Kernel/FcRoot.h"

#include "Fc/Drawing/FcGenerateParams.h"
#include "Fc/FcCopySettings.h"

namespace qor::fc::core::kernel {

void FcRoot::doAssign(const FcBase& source, FcCopySettings& settings) {
  FcBase::doAssign(source, settings);
  if (settings.generateNewGuids) setGlobalId(Guid::generate());
  noteGuidChange();
}

void FcRoot::generate(FcGenerateParams& params) const { params.generate(*this); }

void FcRoot::doGenerate(FcGenerateParams& /*params*/) const {}

std::shared_ptr<FcRoot> FcRoot::sharedRoot() const {
  return std::const_pointer_cast<FcRoot>(
      std::static_pointer_cast<const FcRoot>(shared_from_this()));
}

}  // namespace qor::fc::core::kernel
