#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Reflection/AttributeInfo.h"
#include "Host/Cli/ContentHash.h"
#include "Host/StepFile/InstanceTable.h"

namespace qor::host::cli {

/// An attribute of a root whose content differs, and the first place in it where it does.
struct AttributeDiff {
  const fc::AttributeInfo* attribute;
  /// "Name", or the way down to the place: "Representation.Representations[1].Items[1].Depth". The
  /// positions are 1-based, and those of the first model.
  std::string path;
  /// The attribute at the end of the path, and the entities that hold it in the two models.
  const fc::AttributeInfo* place;
  const fc::FcBase* before;
  const fc::FcBase* after;
};

/// What differs between two models, by content: roots are matched by guid, those that have one guid
/// in the order of their files. Numbers of instances and owner histories don't count, and a root
/// that refers to another one doesn't change with it. Linear in the size of the models.
class ModelDiff {
 public:
  using Root = std::shared_ptr<const fc::core::kernel::FcRoot>;
  struct Changed {
    Root before;
    Root after;
    /// Empty when the class is another one.
    std::vector<AttributeDiff> attributes;
  };

  ModelDiff(std::span<const step::NumberedEntity> before,
            std::span<const step::NumberedEntity> after);

  /// Each in the order of its file, the changed ones of the second.
  const std::vector<Root>& added() const { return m_added; }
  const std::vector<Root>& removed() const { return m_removed; }
  const std::vector<Changed>& changed() const { return m_changed; }

 private:
  void compare(const Root& before, const Root& after);
  AttributeDiff follow(const fc::FcBase& before, const fc::FcBase& after,
                       const fc::AttributeInfo& attribute);
  const fc::AttributeInfo* firstDifference(const fc::FcBase& before, const fc::FcBase& after);
  bool differs(const fc::FcBase& before, const fc::FcBase& after,
               const fc::AttributeInfo& attribute);

  ContentHash m_hash;
  std::vector<Root> m_added;
  std::vector<Root> m_removed;
  std::vector<Changed> m_changed;
};

}  // namespace qor::host::cli
