#pragma once

#include "Host/Targets/MeshMeasure.h"
#include "Host/Targets/Scene.h"

namespace qor::host::targets {

/// Measures all surfaces that an object draws, blocks included, in project coordinates.
MeshMeasure measureObject(const Scene& scene, const SceneObject& object);

}  // namespace qor::host::targets
