#pragma once

#include <TopoDS_Shape.hxx>
#include <optional>
#include <vector>

#include "Fc/Resource/GeometricModel/FcBooleanOperand.h"
#include "Qor/Math/Extent.h"

namespace qor::fc {

class FcParams;

/// Makes the shapes that a body is cut with. Half-spaces become prisms that reach round the body.
class DifferenceTools {
 public:
  struct Tool {
    std::vector<TopoDS_Shape> shapes;  ///< none of them null; empty for a tool that is no body
    bool isAway = false;               ///< the tool doesn't reach the body: there is nothing to cut
  };

  /// Of the body `base` with its shapes. All three must outlive this.
  DifferenceTools(const resource::geometricmodel::FcBooleanOperand& base,
                  const std::vector<TopoDS_Shape>& shapes, const FcParams& params);

  Tool of(const resource::geometricmodel::FcBooleanOperand& operand) const;

 private:
  const FcParams& m_params;
  std::optional<math::Extent> m_told;  // as the body tells: it may know nothing of a turned profile
  math::Extent m_reach;                // that and the box of its shapes
};

}  // namespace qor::fc
