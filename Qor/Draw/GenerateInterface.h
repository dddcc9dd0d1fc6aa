#pragma once

#include <memory>

#include "Qor/Draw/AttributeInterface.h"
#include "Qor/Draw/Color.h"
#include "Qor/Draw/Material.h"
#include "Qor/Object/ObjectInterface.h"
#include "Qor/Platform/Export.h"

namespace qor::generate {

/// What a target is told of the objects that it draws, and what they look like.
class QOR_API GenerateInterface {
 public:
  virtual ~GenerateInterface() = default;

  /// Opens an object; objects may lie within objects. What the object holds may change behind the
  /// pointer after the `stopObject` that belongs to it: read at once what is to be kept.
  virtual void startObject(const ObjectInterface* object) = 0;
  virtual void stopObject() = 0;
  /// True when the target took the attribute.
  virtual bool boAttribute(const AttributeInterface& attribute) = 0;
  /// For what comes until the next call.
  virtual void setMaterial(std::shared_ptr<const draw::Material> material) = 0;
  /// The present one, null while there was none.
  virtual std::shared_ptr<const draw::Material> getMaterial() const = 0;
  virtual void setColor(const draw::Color& color) = 0;
  virtual draw::Color getColor() const = 0;
};

}  // namespace qor::generate
