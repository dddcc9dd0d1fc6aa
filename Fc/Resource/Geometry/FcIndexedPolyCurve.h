#pragma once

#include "Fc/Resource/Geometry/FcIndexedPolyCurveAttributes.h"
#include "Qor/Draw/Profile2D.h"

namespace qor::fc::resource::geometry {

/// IfcIndexedPolyCurve, Resource.Geometry: lines and arcs through the points of one list.
///
/// The building operations make a curve of the plane as a path of relative moves: `startAt`, then
/// `lineTo` and `arcTo`, at last one that closes it where it is to be closed.
class QOR_API FcIndexedPolyCurve : public FcIndexedPolyCurveAttributes {
 public:
  /// Begins a path: a new list of points, in no model, with this one. An assert for a list that is
  /// there, which is replaced.
  void startAt(const math::Point2d& point);
  void lineTo(const math::Vector2d& move);
  /// The shorter arc of that radius; without one, when the radius is too small, a straight line.
  void arcTo(const math::Vector2d& move, double radius, bool counterClockwise);
  /// Back to the first point. Both assert, and do nothing, before `startAt`.
  void closeWithLine();
  void closeWithArc(double radius, bool counterClockwise);

  /// Replaces points and segments by a path in space through `points` whose inner corners are
  /// rounded (see `RoundedPath`). 0 rounds nothing.
  void setRounded(double radius, const std::vector<math::Point3d>& points);

  /// With segments, by their indices; without, at least three points of which the first and the
  /// last are equal to the bit.
  bool isClosed() const;
  bool isClosed(const FcParams& params) const override;
  /// Its points are a list of the plane.
  bool is2d() const override;
  std::optional<std::vector<math::Point2d>> closedCurve2dGet(const FcParams& params) const override;
  /// Neither trims nor `reverse`: an assert and nothing. Points in space count as planar when none
  /// has a height.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  /// Neither trims nor `reverse`: an assert and nothing.
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// `curve2d` as one contour, whose points on arcs are soft.
  std::optional<generate::draw::Profile2D> closed2dCurveWithEdgeInformation(const FcParams& params,
                                                                            const Trim& trim1,
                                                                            const Trim& trim2,
                                                                            bool reverse) const;
  /// A length for each line, the number of its legs, and an angle for each arc. Empty, with an
  /// assert, for indices out of range and for points that make no arc.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

  /// A closed one is drawn as a polygon.
  void draw(const FcDrawParams& params) const override;
  /// Moves the list of points; one of the plane that leaves it is replaced by one of space.
  void transform(const math::Matrix& matrix) override;

 private:
  std::optional<std::vector<math::Point2d>> planarPoints() const;
  std::vector<math::Point3d> computedPoints(const FcParams& params) const;
  std::int64_t lastIndex() const;
  void appendIndexToLine(std::int64_t from, std::int64_t to);
  bool appendArcPoint(const math::Point2d& end, double radius, bool counterClockwise);
  void appendArc(std::int64_t from, std::int64_t via, std::int64_t to);
};

}  // namespace qor::fc::resource::geometry
