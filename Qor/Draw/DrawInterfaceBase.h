#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/SurfaceDrawType.h"
#include "Qor/Draw/TextBoxMeasure.h"
#include "Qor/Draw/TransformationInterface.h"
#include "Qor/Draw/TriangulatedFaceSet.h"
#include "Qor/Draw/TriangulatedFaceSetOpenGL.h"
#include "Qor/Math/CurveDiscretization.h"

namespace qor::generate::draw {

/// What anything is drawn into. A host derives its targets from this, or from `DrawInterface` for
/// one that also wants to know objects and materials.
///
/// All coordinates are metres in the present frame. Lists given by reference live as long as the
/// call; face sets are the target's to keep. A target that derives from several of these interfaces
/// has one `DrawInterfaceBase`: its own constructor names it, `MyTarget() :
/// DrawInterfaceBase(...)`, to say how finely it wants curves. One that overrides only some of the
/// forms of a name says `using DrawInterfaceBase::vPolygon;`, so that the others stay in sight.
class QOR_API DrawInterfaceBase : public TransformationInterface {
 public:
  using Loop3d = std::vector<math::Point3d>;
  using Loop2d = std::vector<math::Point2d>;

  virtual void vPolyline(const std::vector<math::Point3d>& points) = 0;
  /// Single points; the base form draws each as a polyline of one point.
  virtual void vPoints(const std::vector<math::Point3d>& points);
  /// A planar face: the outer loop first, then those of its holes, none with a repeated end point.
  /// No type leaves it to the target how to show it.
  virtual void vPolygon(const std::vector<Loop3d>& loops,
                        std::optional<SurfaceDrawType> type = {}) = 0;
  /// The same in the plane of the frame; the base form gives the points height 0.
  virtual void vPolygon(const std::vector<Loop2d>& loops, std::optional<SurfaceDrawType> type = {});
  /// The base form numbers the points and hands on to the indexed form.
  virtual void triangulatedFaceSet(TriangulatedFaceSet&& faceSet);
  /// The base forms of these two draw each face as a polygon.
  virtual void triangulatedFaceSet(TriangulatedFaceSetOpenGL&& faceSet);
  virtual void polygonalFaceSet(PolygonalFaceSetOpenGL&& faceSet);
  /// A line of UTF-8 text from the origin along the X axis, of `length` bytes.
  virtual void vTextLiteral(const char* text, std::size_t length) = 0;
  /// What `vTextLiteral` would cover; nothing in the base form.
  virtual TextBoxMeasure textLiteralMeasure(const char* text, std::size_t length) const;

  /// Each face of the set ends in one call of `vPolygon`, in order. A face with an index beyond the
  /// coordinates asserts "Illegal index in face" and is passed over. The set itself isn't copied.
  void drawTriangulatedFaceSetAsPolygons(const TriangulatedFaceSetOpenGL& faceSet,
                                         std::optional<SurfaceDrawType> type = {});
  void drawPolygonalFaceSetAsPolygons(const PolygonalFaceSetOpenGL& faceSet,
                                      std::optional<SurfaceDrawType> type = {});

  /// How finely the target wants curves.
  const math::CurveDiscretization& curveDiscretization() const { return *m_curveDiscretization; }
  void setCurveDiscretization(const math::CurveDiscretization& discretization);

 protected:
  /// Segments that leave their circle by at most a millimetre, 12 to 96 of them.
  DrawInterfaceBase();
  explicit DrawInterfaceBase(const math::CurveDiscretization& discretization);
  DrawInterfaceBase(const DrawInterfaceBase& other);
  DrawInterfaceBase& operator=(const DrawInterfaceBase& other);

 private:
  std::unique_ptr<const math::CurveDiscretization> m_curveDiscretization;
};

}  // namespace qor::generate::draw
