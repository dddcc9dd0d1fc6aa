#pragma once

#include <TopoDS_Shape.hxx>
#include <optional>
#include <vector>

#include "Qor/Math/Extent.h"
#include "Qor/Platform/Export.h"

namespace qor::fc {

/// What tells whether the result of an operation can be right.
struct BodyMeasures {
  /// Each edge is used as often one way as the other.
  bool isClosed = false;
  /// In cubic metres; below zero for a body that is inside out. Means nothing for an open one.
  double volume = 0;
  /// In square metres.
  double area = 0;
};

/// Of all shapes together; null ones count for nothing. Empty when Open CASCADE can't measure them.
/// Linear in the number of edges.
QOR_API std::optional<BodyMeasures> measuresOf(const std::vector<TopoDS_Shape>& shapes);

/// The box round all shapes, in metres, a tolerance wider than they are at most; not valid when
/// there are none. Reports that Open CASCADE can't measure one.
QOR_API math::Extent boxAround(const std::vector<TopoDS_Shape>& shapes);

}  // namespace qor::fc
