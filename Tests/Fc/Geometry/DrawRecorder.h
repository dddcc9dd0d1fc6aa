#pragma once

#include <memory>
#include <vector>

#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Resource/Geometry/FcRepresentationItem.h"
#include "Tests/Support/RecordingTarget.h"

namespace qor::test {

/// What single items draw, without the styles and cuts of a walk.
class DrawRecorder : public fc::FcDrawInterface, public RecordingTarget {
  using Item = fc::resource::geometry::FcRepresentationItem;

 public:
  DrawRecorder() : DrawRecorder(math::CurveDiscretization(1e-3, 24, 24)) {}
  explicit DrawRecorder(const math::CurveDiscretization& discretization)
      : DrawInterfaceBase(discretization) {}

  /// Draws one item as a walk would.
  void draw(const Item& item) { item.draw(fc::FcDrawParams(*this)); }

  /// Of items that came whole.
  std::vector<const fc::FcBase*> items;
  bool empty() const { return calls.empty(); }

  void drawConstRepresentationItem(std::shared_ptr<const Item> item, const fc::FcDrawParams& params,
                                   generate::draw::SurfaceDrawType /*type*/) override {
    items.push_back(item.get());
    item->draw(params);
  }
  void drawRepresentationItem(std::shared_ptr<Item> item, const fc::FcDrawParams& params,
                              generate::draw::SurfaceDrawType type) override {
    drawConstRepresentationItem(std::move(item), params, type);
  }
};

}  // namespace qor::test
