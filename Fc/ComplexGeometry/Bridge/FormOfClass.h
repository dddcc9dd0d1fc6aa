#pragma once

#include <optional>
#include <utility>

#include "Fc/FcVisitorBase.h"

namespace qor::fc {

/// Finds the form of an item by its class: a class that has none takes that of its supertype.
///
/// A family of items derives from it, with a `visit` that ends in `give` for each class that has a
/// form, and says `using FormOfClass::visit` for the others.
template <class Form>
class FormOfClass : public FcVisitorBase {
 public:
  using FcVisitorBase::visit;

  /// Empty when no class of the item has a form.
  template <class Item>
  std::optional<Form> of(const Item& item) {
    item.accept(*this);
    return std::move(m_form);
  }

 protected:
  bool give(Form form) {
    m_form = std::move(form);
    return false;  // the supertypes aren't asked
  }

 private:
  std::optional<Form> m_form;
};

}  // namespace qor::fc
