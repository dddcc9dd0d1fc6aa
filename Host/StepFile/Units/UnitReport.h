#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Fc/FcBase.h"

namespace qor::host::step {

/// Takes what is wrong about a unit: the instance, the attribute, and the sentence that follows
/// them.
using UnitReport = std::function<void(const fc::FcBase& entity, std::string_view attribute,
                                      const std::string& detail)>;

}  // namespace qor::host::step
