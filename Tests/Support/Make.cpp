#include "Tests/Support/Make.h"

#include <gtest/gtest.h>

#include <ostream>

namespace qor::fc::details {

void PrintTo(const LocalValue& value, std::ostream* out) {
  *out << "alternative " << value.index() << " of type " << value.typeName.value_or("(none)");
}

}  // namespace qor::fc::details

namespace qor::test {

void give(fc::FcBase& entity, std::initializer_list<Attribute> attributes) {
  for (const Attribute& attribute : attributes) {
    const object::PropertyId id(attribute.name);
    const auto* whole = std::get_if<std::int64_t>(&attribute.value.value);
    const bool isSet =
        entity.setLocalValue(attribute.value, id) ||
        (whole && entity.setLocalValue(fc::LocalValue(static_cast<double>(*whole)), id));
    EXPECT_TRUE(isSet) << entity.ifcName() << '.' << attribute.name;
  }
}

}  // namespace qor::test
