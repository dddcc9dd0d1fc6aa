#pragma once

#include "Fc/Resource/Geometry/FcPolylineAttributes.h"

namespace qor::fc::resource::geometry {

/// IfcPolyline, Resource.Geometry: straight segments from point to point.
class QOR_API FcPolyline : public FcPolylineAttributes {
 public:
  using FcPolylineAttributes::setPoints;
  /// New points in no model, of the dimension given; `close` repeats the first one, as the same
  /// entity, at the end. An assert, and no change, for fewer than two points.
  void setPoints(const std::vector<math::Point2d>& points, bool close);
  void setPoints(const std::vector<math::Point3d>& points, bool close);

  /// At least three points, of which the first and the last are the same entity.
  bool isClosed() const;
  bool isClosed(const FcParams& params) const override;
  /// The first point has two coordinates.
  bool is2d() const override;
  std::shared_ptr<FcIndexedPolyCurve> getAsIndexedPolyCurve(const FcParams& params) const override;
  std::optional<std::vector<math::Point2d>> closedCurve2dGet(const FcParams& params) const override;
  /// Trims come in pairs, as points on the polyline. Nothing for a polyline in space.
  std::optional<std::vector<math::Point2d>> curve2d(const FcParams& params, const Trim& trim1,
                                                    const Trim& trim2, bool reverse) const override;
  std::vector<math::Point3d> curveGet(const FcParams& params, const Trim& trim1, const Trim& trim2,
                                      bool reverse) const override;
  /// One length, that of the whole polyline.
  std::vector<std::pair<double, ParameterType>> parametricSegments() const override;

  /// A closed one is drawn as a polygon.
  void draw(const FcDrawParams& params) const override;
  /// Moves the points in place, each entity once. Stored with dimension 2 when the first point has
  /// it and the matrix keeps the plane, else with dimension 3. An assert, and no change, when a
  /// point is missing.
  void transform(const math::Matrix& matrix) override;
  std::optional<math::Extent> boundingBox(const FcParams& params) const override;
  std::optional<math::Extent2d> planarBox(const FcParams& params) const override;

 private:
  bool hasAllPoints() const;
  std::vector<math::Point3d> allPoints() const;
};

}  // namespace qor::fc::resource::geometry
