#pragma once

#include "Fc/Resource/PresentationAppearance/FcColourRgbAttributes.h"
#include "Qor/Draw/Color.h"

namespace qor::fc::resource::presentationappearance {

/// IfcColourRgb, Resource.Presentation Appearance.
class QOR_API FcColourRgb : public FcColourRgbAttributes {
 public:
  /// In single precision, with alpha 1.
  generate::draw::Color color() const {
    return {static_cast<float>(Red().value()), static_cast<float>(Green().value()),
            static_cast<float>(Blue().value())};
  }
};

}  // namespace qor::fc::resource::presentationappearance
