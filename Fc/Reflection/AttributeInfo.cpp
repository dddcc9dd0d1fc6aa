#include "Fc/Reflection/AttributeInfo.h"

#include <vector>

#include "Fc/Reflection/SchemaTables.h"
#include "Qor/Object/PropertyId.h"

namespace qor::fc {

const object::PropertyId& AttributeInfo::id() const {
  static const std::vector<const object::PropertyId*> ids = [] {
    std::vector<const object::PropertyId*> result;
    for (const char* attribute : SchemaTables::attributeNames())
      result.push_back(&object::PropertyId::interned(attribute));
    return result;
  }();
  return *ids[nameIndex];
}

}  // namespace qor::fc
