#include "Qor/Object/PropertyValue.h"

#include "Qor/Assert/Assert.h"

namespace qor::object {

void PropertyValue::reportWrongType() {
  if (Assert::isEnabled())
    Assert::addAssert({.message = "Property value doesn't hold the given type.",
                       .function = "qor::object::PropertyValue::get",
                       .source = "PropertyValue",
                       .line = __LINE__});
}

}  // namespace qor::object
