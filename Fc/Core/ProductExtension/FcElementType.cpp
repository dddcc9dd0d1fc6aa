#include "Fc/Core/ProductExtension/FcElementType.h"

namespace qor::fc::core::productextension {

void FcElementType::setPredefinedTypeFromString(const std::string& text) {
  if (!storePredefinedType(text)) setElementType(text);
}

}  // namespace qor::fc::core::productextension
