#pragma once

#include <utility>
#include <vector>

#include "Fc/ComplexGeometry/FcComplexGeometryTaskResult.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"

namespace qor::fc {

/// Face sets to draw, in the frame of the item that the task was made of. May be empty.
class QOR_API FcPolygonalFaceSetResult : public FcComplexGeometryTaskResult {
 public:
  using FaceSets = std::vector<generate::draw::PolygonalFaceSetOpenGL>;

  explicit FcPolygonalFaceSetResult(FaceSets faceSets) : m_faceSets(std::move(faceSets)) {}
  ~FcPolygonalFaceSetResult() override;

  /// A copy.
  FaceSets faceSets() const { return m_faceSets; }
  /// The face sets themselves, which this holds no longer.
  FaceSets takeFaceSets() { return std::move(m_faceSets); }

 private:
  FaceSets m_faceSets;
};

}  // namespace qor::fc
