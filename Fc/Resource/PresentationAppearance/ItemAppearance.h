#pragma once

#include <optional>

#include "Qor/Draw/Color.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometry {
class FcRepresentationItem;
}
namespace qor::fc::resource::presentationappearance {
class FcSurfaceStyleShading;
class FcSurfaceStyleWithTextures;
}  // namespace qor::fc::resource::presentationappearance

namespace qor::fc {

/// What the styles of an item say of its look: of several of a kind the last. The styles belong to
/// the model.
struct QOR_API ItemAppearance {
  const resource::presentationappearance::FcSurfaceStyleShading* shading = nullptr;
  const resource::presentationappearance::FcSurfaceStyleWithTextures* textures = nullptr;
  /// Of its curves.
  std::optional<generate::draw::Color> color;

  /// Other kinds of styles say nothing.
  static ItemAppearance of(const resource::geometry::FcRepresentationItem& item);
};

}  // namespace qor::fc
