#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "Fc/Core/Kernel/FcObjectDefinition.h"
#include "Fc/Core/Kernel/FcRelationship.h"
#include "Fc/Data.h"
#include "Fc/FcCopySettings.h"
#include "Host/StepFile/InstanceTable.h"

namespace qor::host::cli {

/// Copies objects of a model with what they need into a new one:
///
/// - of an element its parts, openings and projections, and theirs;
/// - of all of these the way up to the project, and their types;
/// - of all these objects their placements and shapes with styles and layers, property sets,
///   materials, classifications and documents, and the relationships among themselves.
///
/// Relationships and layers keep those of their members that are copied. The source stays as it is.
/// Linear in the size of the source.
class ModelExtract {
 public:
  using Object = std::shared_ptr<fc::core::kernel::FcObjectDefinition>;

  /// `instances` are those of the whole source, in the order of the file; they must outlive this.
  ModelExtract(std::span<const step::NumberedEntity> instances, const std::vector<Object>& chosen);

  std::shared_ptr<fc::Data> data() const { return m_target; }
  /// The copies under the numbers of their sources, in the order of the file.
  std::vector<step::NumberedEntity> numbers() const;

 private:
  using Relationship = fc::core::kernel::FcRelationship;

  void include(const std::vector<Object>& chosen);
  /// Each object once, but once more if it comes with its parts now and didn't before.
  bool add(const Object& object, bool withParts);
  void addAbove(const Object& object);
  void addParts(const Object& object);
  void copyRelationships();
  bool joinsCopies(const Relationship& relation) const;
  void copyDependents();
  void copyLayers();
  /// A copy whose lists hold those members alone that are copied already.
  void copyReduced(const std::shared_ptr<fc::FcBase>& entity);
  bool isCopied(const fc::FcBase* entity) const;
  void drainQueue();

  std::span<const step::NumberedEntity> m_instances;
  std::vector<Object> m_objects;
  std::unordered_set<const fc::FcBase*> m_included;
  std::unordered_set<const fc::FcBase*> m_withParts;
  std::vector<Object> m_waiting;
  std::shared_ptr<fc::Data> m_target = std::make_shared<fc::Data>();
  fc::FcCopySettings m_settings;
};

}  // namespace qor::host::cli
