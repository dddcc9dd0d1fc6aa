#include "Qor/Image/Png.h"

#include <png.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace qor::image {

namespace {

/// The library's simplified interface keeps its state, and reports errors, in this structure.
struct PngImage : png_image {
  PngImage() : png_image() { version = PNG_IMAGE_VERSION; }
  PngImage(const PngImage&) = delete;
  PngImage& operator=(const PngImage&) = delete;
  ~PngImage() { png_image_free(this); }
};

bool isOpaque(const Image& image) {
  return std::all_of(image.pixels().begin(), image.pixels().end(),
                     [](const Pixel& pixel) { return pixel[3] == 255; });
}

std::vector<std::uint8_t> withoutAlpha(const Image& image) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(image.pixels().size() * 3);
  for (const Pixel& pixel : image.pixels())
    bytes.insert(bytes.end(), pixel.begin(), pixel.begin() + 3);
  return bytes;
}

}  // namespace

std::string toPng(const Image& image) {
  constexpr std::size_t largestSide = 1'000'000;  // that of the library
  if (image.pixels().empty() || std::max(image.width(), image.height()) > largestSide) return {};
  const bool opaque = isOpaque(image);
  const std::vector<std::uint8_t> rgb = opaque ? withoutAlpha(image) : std::vector<std::uint8_t>();
  const void* pixels = opaque ? static_cast<const void*>(rgb.data()) : image.pixels().data();
  PngImage png;
  png.width = static_cast<png_uint_32>(image.width());
  png.height = static_cast<png_uint_32>(image.height());
  png.format = opaque ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(png);  // an upper bound
  std::string bytes(size, '\0');
  if (!png_image_write_to_memory(&png, bytes.data(), &size, 0, pixels, 0, nullptr)) return {};
  bytes.resize(size);
  return bytes;
}

std::optional<Image> fromPng(std::string_view bytes) {
  PngImage png;
  if (!png_image_begin_read_from_memory(&png, bytes.data(), bytes.size())) return std::nullopt;
  png.format = PNG_FORMAT_RGBA;
  std::vector<std::uint8_t> buffer(PNG_IMAGE_SIZE(png));
  if (!png_image_finish_read(&png, nullptr, buffer.data(), 0, nullptr)) return std::nullopt;
  Image image(png.width, png.height);
  std::memcpy(&image.at(0, 0), buffer.data(), buffer.size());
  return image;
}

}  // namespace qor::image
