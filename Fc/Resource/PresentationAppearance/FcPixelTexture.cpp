#include "Fc/Resource/PresentationAppearance/FcPixelTexture.h"

#include <string>

#include "Fc/Model/Report.h"

namespace qor::fc::resource::presentationappearance {

namespace {

// The bytes of all pixels; none when one has another number of bytes.
std::vector<std::uint8_t> bytesOf(const std::vector<std::vector<std::uint8_t>>& pixels,
                                  std::size_t components) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(pixels.size() * components);
  for (const auto& pixel : pixels) {
    if (pixel.size() != components) return {};
    bytes.insert(bytes.end(), pixel.begin(), pixel.end());
  }
  return bytes;
}

void assertMisfit(std::size_t count, std::int64_t width, std::int64_t height) {
  report("Pixels of a texture don't fit its size: " + std::to_string(count) + " for " +
         std::to_string(width) + " by " + std::to_string(height));
}

}  // namespace

generate::draw::Texture FcPixelTexture::getTexture() const {
  auto texture = FcSurfaceTexture::getTexture();
  const auto width = Width().value(), height = Height().value();
  const auto components = ColourComponents().value();
  const auto count = static_cast<std::int64_t>(Pixel().size());
  const bool fits = components >= 1 && components <= 4 && width > 0 && height > 0 &&
                    count % width == 0 && count / width == height;
  if (fits) texture.pixels = bytesOf(Pixel(), static_cast<std::size_t>(components));
  if (texture.pixels.empty()) {
    assertMisfit(Pixel().size(), width, height);
    return texture;
  }
  texture.width = static_cast<std::uint32_t>(width);
  texture.height = static_cast<std::uint32_t>(height);
  texture.components = static_cast<std::uint32_t>(components);
  return texture;
}

}  // namespace qor::fc::resource::presentationappearance
