#pragma once

#include <memory>

#include "Qor/Draw/Material.h"
#include "Qor/Draw/PolygonalFaceSetOpenGL.h"
#include "Qor/Draw/TriangulatedFaceSetOpenGL.h"

namespace qor::fc::resource::geometricmodel {

/// Faces that are drawn in one material; without one they take the target's present material.
struct FaceSetWithMaterial {
  generate::draw::PolygonalFaceSetOpenGL faceSet;
  std::shared_ptr<generate::draw::Material> material;
};

/// The same of triangles.
struct TriangulatedFaceSetWithMaterial {
  generate::draw::TriangulatedFaceSetOpenGL faceSet;
  std::shared_ptr<generate::draw::Material> material;
};

}  // namespace qor::fc::resource::geometricmodel
