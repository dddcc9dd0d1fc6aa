#include "Host/StepFile/TakeApart.h"

#include "Fc/Reflection/LocalValue.h"
#include "Fc/Reflection/TypeOperations.h"

namespace qor::host::step {

void takeApart(const fc::Data& data) {
  const fc::LocalValue none{fc::details::EmptyValue()};
  for (const std::shared_ptr<fc::FcBase>& entity : data.allEntities()) {
    entity->classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
      const fc::TypeOperations& type = *attribute.type;
      if (type.entitiesOnly || type.select) type.setLocalValue(attribute.of(*entity), none);
    });
  }
}

}  // namespace qor::host::step
