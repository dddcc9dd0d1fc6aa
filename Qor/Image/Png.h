#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Qor/Image/Image.h"
#include "Qor/Platform/Export.h"

namespace qor::image {

/// The bytes of a PNG file, without an alpha channel when all pixels are opaque. Empty for an image
/// without pixels, or one with a side above a million.
QOR_API std::string toPng(const Image& image);

/// Reads a PNG file of any colour type and depth, to 8 bits a channel. Nothing when the bytes are
/// none, or broken.
QOR_API std::optional<Image> fromPng(std::string_view bytes);

}  // namespace qor::image
