#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <typeinfo>

#include "Fc/Reflection/AttributeInfo.h"
#include "Qor/Platform/Export.h"
#include "Qor/String/StringHash.h"

namespace qor::fc {

class FcBase;

/// What is constant about a schema class. One record a class, reached from an instance by
/// `FcBase::classInfo()`, from the type by `FcWall::info()` and from a name by `Factory`.
struct ClassInfo {
  StringHash name;        ///< "IfcWall"
  StringHash upperName;   ///< "IFCWALL"
  const char* group;      ///< "Building Elements"
  const char* groupPath;  ///< "Shared.Building Elements"
  std::uint32_t classId;
  std::uint32_t classIdLast;
  /// Null for a class without a supertype.
  const ClassInfo* parent;
  std::uint32_t size;  ///< in bytes
  /// Makes an instance in the place given; null for an abstract class.
  void (*construct)(void* place);
  const std::type_info* type;
  /// The forward attributes that the class itself declares, in schema order.
  std::span<const AttributeInfo> attributes;
  /// The inverse attributes that the class itself declares, in schema order.
  std::span<const AttributeInfo> inverseAttributes;
  /// Attributes of supertypes that this class derives: a file writes `*` in their place.
  std::span<const std::string_view> derivedAttributes;
  /// The class or one of its supertypes has a forward attribute with an inverse.
  bool linksTargets;

  bool isAbstract() const { return construct == nullptr; }
  /// A new instance; the class must not be abstract.
  QOR_API std::shared_ptr<FcBase> create() const;
  bool contains(std::uint32_t id) const { return id >= classId && id <= classIdLast; }
  /// This class or one of its supertypes derives the attribute.
  bool isDerived(std::string_view attribute) const {
    for (std::string_view derived : derivedAttributes)
      if (derived == attribute) return true;
    return parent && parent->isDerived(attribute);
  }
  /// The forward attribute of this name, inherited or not; null for none. Compares names along the
  /// chain of classes.
  const AttributeInfo* findAttribute(std::string_view attribute) const {
    return find(attribute, &ClassInfo::attributes);
  }
  const AttributeInfo* findInverseAttribute(std::string_view attribute) const {
    return find(attribute, &ClassInfo::inverseAttributes);
  }
  /// The class in the chain that declares the attribute, forward or inverse; null for none.
  const ClassInfo* declaringClass(std::string_view attribute) const {
    for (const ClassInfo* info = this; info; info = info->parent)
      if (info->declares(attribute, &ClassInfo::attributes) ||
          info->declares(attribute, &ClassInfo::inverseAttributes))
        return info;
    return nullptr;
  }
  /// Calls back for each forward attribute, supertypes first: the order of a file's parameters.
  template <class Callback>
  void forEachAttribute(Callback&& callback) const {
    if (parent) parent->forEachAttribute(callback);
    for (const AttributeInfo& attribute : attributes) callback(attribute);
  }
  /// Calls back for each inverse attribute, supertypes first.
  template <class Callback>
  void forEachInverseAttribute(Callback&& callback) const {
    if (parent) parent->forEachInverseAttribute(callback);
    for (const AttributeInfo& attribute : inverseAttributes) callback(attribute);
  }
  /// Class by class, supertypes first: the forward attributes to `forward`, then the inverse ones
  /// to `inverse`.
  template <class Forward, class Inverse>
  void forEachAttributeByClass(Forward&& forward, Inverse&& inverse) const {
    if (parent) parent->forEachAttributeByClass(forward, inverse);
    for (const AttributeInfo& attribute : attributes) forward(attribute);
    for (const AttributeInfo& attribute : inverseAttributes) inverse(attribute);
  }

 private:
  using Attributes = std::span<const AttributeInfo> ClassInfo::*;

  const AttributeInfo* declares(std::string_view attribute, Attributes list) const {
    for (const AttributeInfo& info : this->*list)
      if (info.name == attribute) return &info;
    return nullptr;
  }
  const AttributeInfo* find(std::string_view attribute, Attributes list) const {
    for (const ClassInfo* info = this; info; info = info->parent)
      if (const AttributeInfo* found = info->declares(attribute, list)) return found;
    return nullptr;
  }
};

}  // namespace qor::fc
