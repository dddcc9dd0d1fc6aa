#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/Profile2D.h"
#include "Qor/Platform/Export.h"

/// What all bodies swept from a profile are built of: a ring of points at each station (all
/// contours of the profile, one behind the other), a bottom, quads between rings that follow each
/// other, a top. Indices are 0-based into the points of all rings in order.
namespace qor::fc::resource::geometricmodel {

using SweptFace = generate::draw::PolygonalFaceSetOpenGL::Face;
using SweptFaces = std::vector<SweptFace>;

/// The first ring, at height 0, with room for `stations` more. `reverse` walks each contour from
/// its last point to its first. An assert for a contour without points.
QOR_API std::vector<math::Point3d> getPointsInProfileForGeneratingFaceSet(
    const generate::draw::Profile2D& profile, std::size_t stations, bool reverse);

/// Over the first ring, seen from below: each contour from its last point to its first. An assert
/// and an empty face for a profile without contours.
QOR_API SweptFace generateBottomFace(const generate::draw::Profile2D& profile);

/// The bottom turned round, over the ring that begins at `offset`. An assert when `hasVoids` says
/// that there should be holes and the bottom has none.
QOR_API SweptFace generateTopFace(const SweptFace& bottom, std::uint32_t offset, bool hasVoids);

/// The quads between two rings of `n` points, outward for counter-clockwise outer contours and
/// upward sweeps. `counter` is the index of the last point of the ring below and, after, of the
/// ring above. With `soft` those go there that stand on a soft edge: one whose contour has a flag
/// at either end. An assert for each edge that the profile's flags don't cover; it counts as sharp.
/// A contour of one point has none.
QOR_API void addIndexedFacesForSides(const generate::draw::Profile2D& profile, std::size_t n,
                                     std::size_t& counter, SweptFaces& hard, SweptFaces* soft);

/// Some edge of the profile may be soft: it has flags by point, or the one for all is set.
QOR_API bool mayHaveSoftEdges(const generate::draw::Profile2D& profile);

/// The finished body: hard and soft faces over the same rings of `n` points as one set. Hard faces
/// name points of the first ring, and as `n` and up those of the last ring, when there are soft
/// ones too; otherwise those of all rings.
QOR_API generate::draw::PolygonalFaceSetOpenGL sweptFaceSet(std::vector<math::Point3d>&& points,
                                                            std::size_t n, SweptFaces&& hard,
                                                            SweptFaces&& soft);

}  // namespace qor::fc::resource::geometricmodel
