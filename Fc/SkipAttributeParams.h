#pragma once

#include <string_view>

namespace qor::fc {

class FcBase;

/// One attribute of one entity, which a comparison asks whether to pass over.
struct SkipAttributeParams {
  const FcBase* entity;
  std::string_view attribute;
};

}  // namespace qor::fc
