#include "Fc/Reflection/ClassInfo.h"

#include "Fc/Reflection/MakeEntity.h"

namespace qor::fc {

std::shared_ptr<FcBase> ClassInfo::create() const { return makeEntityOfSize(size, construct); }

}  // namespace qor::fc
