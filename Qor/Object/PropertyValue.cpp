#include "Qor/Object/PropertyValue.h"

#include "Qor/Assert/Report.h"

namespace qor::object {

void PropertyValue::reportWrongType() { report("Property value doesn't hold the given type."); }

}  // namespace qor::object
