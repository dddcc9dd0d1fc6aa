#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Geometry/FcCurveAttributes.h"
#include "Fc/Resource/Geometry/FcTrimmingSelect.h"

namespace qor::fc::resource::geometry {

class FcIndexedPolyCurve;

/// IfcCurve, Resource.Geometry: a line in the plane or in space, evaluated into points.
///
/// Each question is answered anew from the attributes; nothing is kept. What can't be answered
/// raises an assert and yields nothing: no points, no box, false. The base forms are those of a
/// class that can't answer at all, and name that class. A curve that is part of itself ends with an
/// assert as well.
class QOR_API FcCurve : public FcCurveAttributes {
 public:
  enum class ParameterType { length = 0, angle = 1 };
  using Trim = std::optional<FcTrimmingSelect>;

  /// Where it ends is where it began.
  virtual bool isClosed(const FcParams& params) const;
  /// It lies in the XY plane.
  virtual bool is2d() const;
  /// A new curve through the same points, in no model.
  virtual std::shared_ptr<FcIndexedPolyCurve> getAsIndexedPolyCurve(const FcParams& params) const;
  /// The points of a closed planar curve, without a repeated end point.
  virtual std::optional<std::vector<math::Point2d>> closedCurve2dGet(const FcParams& params) const;
  /// The points of a planar curve from the first trim to the second, both ends included; an absent
  /// trim is the end of the curve itself. `reverse` runs against the curve's own direction.
  virtual std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params,
                                                            const Trim& trim1, const Trim& trim2,
                                                            bool reverse) const;
  /// The same in space.
  virtual std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1,
                                              const Trim& trim2, bool reverse) const;
  /// The exact curve for the solid modeller, made once for all edges that share `memoizer`. Null,
  /// with an assert, when it can't be made. The base form reports that the class has none.
  virtual OcCurve ocCurve(ocMemoizer& memoizer) const;
  /// The pieces over which the parameter of the curve runs, each with its extent in radians or in
  /// what is like a length.
  virtual std::vector<std::pair<double, ParameterType>> parametricSegments() const = 0;

  /// A parameter on the curve with angles in radians, from one with angles in the unit of a file
  /// and back; `planeAngleFactor` is that unit in radians. Beyond the end of the last piece the
  /// answer is the whole extent, except on a single angle.
  double convertParameterToSi(double value, double planeAngleFactor) const;
  double convertParameterFromSi(double value, double planeAngleFactor) const;

  /// `curveGet` without trims as a ring of straight edges, which closes whether the curve does or
  /// not. A null wire, with an assert, for fewer than two points.
  TopoDS_Wire ocDiscretizedCurve(const FcParams& params) const;

  /// `curveGet` without trims as a polyline.
  void draw(const FcDrawParams& params) const override;
  /// The boxes around the points of `curveGet` and `curve2d` without trims.
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;

 protected:
  FcCurve() = default;
};

}  // namespace qor::fc::resource::geometry
