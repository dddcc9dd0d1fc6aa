#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Fc/Resource/Measure/FcValue.h"

namespace qor::fc::resource::property {
class FcProperty;
}

namespace qor::fc::core::kernel {

class FcPropertySet;

/// The base of typed views of standard property sets: an ordinary set, from a file as well as made
/// in a program, whose properties are read and written under their standard names and types.
///
/// A view holds no values. Reading gives nothing for a property that isn't there, or is of another
/// kind than the standard says. Writing gives the property its standard type; one that isn't there
/// is added, also to the set's model, and one that has no single value is replaced.
class QOR_API PropertySetView {
 public:
  explicit PropertySetView(std::shared_ptr<FcPropertySet> set) : m_set(std::move(set)) {}

  const std::shared_ptr<FcPropertySet>& propertySet() const { return m_set; }
  const std::optional<std::string>& Name() const;
  const std::vector<std::shared_ptr<resource::property::FcProperty>>& HasProperties() const;

 protected:
  // Of properties with a single value.
  std::optional<std::string> text(const char* name) const;
  std::optional<double> number(const char* name) const;
  std::optional<std::int64_t> integer(const char* name) const;
  std::optional<bool> boolean(const char* name) const;
  void setValue(const char* name, resource::measure::FcValue value);

 private:
  const resource::measure::FcValue* value(const char* name) const;

  std::shared_ptr<FcPropertySet> m_set;
};

}  // namespace qor::fc::core::kernel
