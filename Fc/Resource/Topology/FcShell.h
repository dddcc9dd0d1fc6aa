#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Fc/Model/OpenCascadeTypes.h"
#include "Fc/Resource/Topology/FcShellAlternatives.h"
#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc {
class FcDrawParams;
class FcParams;
}  // namespace qor::fc

namespace qor::fc::resource::topology {

class FcConnectedFaceSet;

/// IfcShell, Resource.Topology: an open or closed shell.
class QOR_API FcShell : public FcShellAlternatives {
 public:
  using FcShellAlternatives::FcShellAlternatives;

  /// The shell of either kind; null for none.
  std::shared_ptr<FcConnectedFaceSet> connectedFaceSet() const;

  // Those of the shell. Without one: nothing, an assert, empty.
  void draw(const FcDrawParams& params) const;
  void transform(const math::Matrix& matrix) const;
  std::optional<math::Extent> boundingBox(const FcParams& params) const;
  std::vector<TopoDS_Shape> ocRepresentation(const FcParams& params) const;
};

}  // namespace qor::fc::resource::topology
