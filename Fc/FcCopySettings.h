#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "Fc/FcBase.h"
#include "Qor/Assert/WayOut.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

class Data;

/// The state of one run of copying: what has been copied, what waits to be filled, and the host's
/// wishes.
///
/// Used for any number of `deepCopy` calls, each of which knows the copies of the earlier ones.
/// Belongs to one thread. With a `target` the run is complete only when the settings are destroyed:
/// then the styles and textures that copied items carry by inverse attributes alone follow them.
class QOR_API FcCopySettings {
 public:
  FcCopySettings() = default;
  FcCopySettings(const FcCopySettings&) = delete;
  FcCopySettings& operator=(const FcCopySettings&) = delete;
  /// What a callback of the host throws reaches the host, unless another exception ends the run.
  ~FcCopySettings() noexcept(false);

  /// Maps each geometric representation context of `source` that equals one of `target` to that, so
  /// that contexts aren't duplicated.
  void initiateCopiedEntities(Data& target, const Data& source);

  /// Roots get a fresh `GlobalId` instead of their source's.
  bool generateNewGuids = false;
  /// Where new copies are listed; none when empty.
  std::shared_ptr<Data> target;
  /// Source to copy, ordered by address. Keeps the copies alive.
  std::map<const FcBase*, std::shared_ptr<FcBase>> copiedEntities;
  /// False refuses the known copy of a source: it is copied anew.
  std::function<bool(const FcBase& source, FcBase& copy)> reuseCheck;
  /// Supplies the copy of a source; null leaves it to the run. What it supplies is neither filled
  /// nor remembered.
  std::function<std::shared_ptr<FcBase>(const FcBase& source)> externalCopy;
  /// Sources with a copy that is still empty.
  std::deque<std::pair<const FcBase*, FcBase*>> copyQueue;

 private:
  void copyStylesAndTextures();

  WayOut m_wayOut;
};

}  // namespace qor::fc
