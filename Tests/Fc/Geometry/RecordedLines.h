#pragma once

#include "DrawRecorder.h"

namespace qor::fc {

/// The polylines and polygons that an item draws.
struct RecordedLines {
  explicit RecordedLines(const resource::geometry::FcRepresentationItem& item) {
    test::DrawRecorder target(math::CurveDiscretization(0, 72, 72));
    target.draw(item);
    for (const auto& drawn : target.polylines) polylines.push_back(drawn.what);
    for (const auto& drawn : target.polygons) polygons.push_back(drawn.what);
  }

  std::vector<std::vector<math::Point3d>> polylines;
  std::vector<std::vector<std::vector<math::Point3d>>> polygons;
};

}  // namespace qor::fc
