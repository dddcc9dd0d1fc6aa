#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "Qor/Draw/Color.h"
#include "Qor/Draw/ReflectanceMethod.h"
#include "Qor/Draw/Texture.h"

namespace qor::generate::draw {

/// What a surface looks like. Targets hold materials by `std::shared_ptr<const Material>`: one
/// object for all that is drawn with it, so that its address may be a key.
///
/// A colour that isn't given has alpha 0.
class Material {
 public:
  const Color& getSurfaceColor() const { return m_surface; }
  void setSurfaceColor(const Color& color) { m_surface = color; }
  const Color& getDiffuseColor() const { return m_diffuse; }
  void setDiffuseColor(const Color& color) { m_diffuse = color; }
  const Color& getSpecularColor() const { return m_specular; }
  void setSpecularColor(const Color& color) { m_specular = color; }
  const Color& getReflectionColor() const { return m_reflection; }
  void setReflectionColor(const Color& color) { m_reflection = color; }
  const Color& getTransmissionColor() const { return m_transmission; }
  void setTransmissionColor(const Color& color) { m_transmission = color; }
  const Color& getDiffuseTransmissionColor() const { return m_diffuseTransmission; }
  void setDiffuseTransmissionColor(const Color& color) { m_diffuseTransmission = color; }

  /// 1 is opaque, 0 can't be seen; none counts as opaque.
  const std::optional<float>& getOpacity() const { return m_opacity; }
  void setOpacity(std::optional<float> opacity) { m_opacity = opacity; }
  /// The exponent of the highlight's sharpness.
  const std::optional<float>& getSpecularHighlight() const { return m_specularHighlight; }
  void setSpecularHighlight(std::optional<float> exponent) { m_specularHighlight = exponent; }
  const std::optional<ReflectanceMethod>& getReflectanceMehod() const {
    return m_reflectanceMethod;
  }
  void setReflectanceMehod(std::optional<ReflectanceMethod> method) {
    m_reflectanceMethod = method;
  }
  /// In the order in which they lie on each other.
  const std::vector<Texture>& getDiffuseTextures() const { return m_diffuseTextures; }
  void addDiffuseTexture(Texture texture) { m_diffuseTextures.push_back(std::move(texture)); }

  friend bool operator==(const Material&, const Material&) = default;

 private:
  Color m_surface;
  Color m_diffuse;
  Color m_specular;
  Color m_reflection;
  Color m_transmission;
  Color m_diffuseTransmission;
  std::optional<float> m_opacity;
  std::optional<float> m_specularHighlight;
  std::optional<ReflectanceMethod> m_reflectanceMethod;
  std::vector<Texture> m_diffuseTextures;
};

}  // namespace qor::generate::draw
