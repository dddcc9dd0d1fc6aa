#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Platform/Export.h"

namespace qor::fc::resource::geometry {
class FcRepresentationItem;
}

namespace qor::fc {

class FcDrawParams;
class FcParams;

/// What a draw target cuts out of the items that it draws: the bodies of the openings of the
/// element that is being drawn. Items are added by a `ClippingItemsWorker`, which takes them away
/// again.
class QOR_API FcClip {
 public:
  /// An item, and the frame that it stands in.
  using ClipObject =
      std::pair<std::shared_ptr<const resource::geometry::FcRepresentationItem>, math::Matrix>;

  class ClippingItemsWorker;
  class RestoreClipping;

  FcClip() = default;

  const std::vector<ClipObject>& clipObjects() const { return m_clipObjects; }
  /// The target is drawing what is left of an item: nothing of that is cut again.
  bool isDrawingClipped() const { return m_drawingClipped; }
  /// The item is to be cut before it is drawn.
  bool isClipping() const { return !m_drawingClipped && !m_clipObjects.empty(); }

  /// How many items were cut so far of which nothing was left.
  std::uint64_t cutAwayCount() const { return m_cutAwayCount; }

  /// Draws what the clip objects leave of the item, in the target's present frame. Without a
  /// processor of complex geometry that is nothing. An item that has no solid to cut is drawn
  /// whole, with an assert.
  void drawItemClipped(const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item,
                       const FcDrawParams& params);
  /// What the clip objects of `clip` leave of the item, whose frame is `itemMatrix`, as face sets
  /// in that frame. None without a processor.
  static std::vector<generate::draw::PolygonalFaceSetOpenGL> getClippedItems(
      const std::shared_ptr<const resource::geometry::FcRepresentationItem>& item,
      const math::Matrix& itemMatrix, const FcParams& params, const FcClip& clip);

 private:
  std::vector<ClipObject> m_clipObjects;
  bool m_drawingClipped = false;
  std::uint64_t m_cutAwayCount = 0;
};

/// Adds clip objects for a scope. Workers nest like a stack: each takes away what was added since
/// it was made.
class QOR_API FcClip::ClippingItemsWorker {
 public:
  explicit ClippingItemsWorker(FcClip& clip) : m_clip(clip), m_count(clip.m_clipObjects.size()) {}
  ClippingItemsWorker(const ClippingItemsWorker&) = delete;
  ClippingItemsWorker& operator=(const ClippingItemsWorker&) = delete;
  ~ClippingItemsWorker() {
    auto& objects = m_clip.m_clipObjects;
    if (objects.size() > m_count)
      objects.erase(objects.begin() + static_cast<std::ptrdiff_t>(m_count), objects.end());
  }

  void addClipObject(ClipObject object) { m_clip.m_clipObjects.push_back(std::move(object)); }

 private:
  FcClip& m_clip;
  std::size_t m_count;
};

/// Nothing is cut in this scope. At its end the clip objects are those of its beginning.
class QOR_API FcClip::RestoreClipping {
 public:
  explicit RestoreClipping(FcClip& clip)
      : m_clip(clip), m_saved(std::exchange(clip.m_clipObjects, {})) {}
  RestoreClipping(const RestoreClipping&) = delete;
  RestoreClipping& operator=(const RestoreClipping&) = delete;
  ~RestoreClipping() { m_clip.m_clipObjects = std::move(m_saved); }

 private:
  FcClip& m_clip;
  std::vector<ClipObject> m_saved;
};

}  // namespace qor::fc
