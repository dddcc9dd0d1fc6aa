#pragma once

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/FcVisitorBase.h"
#include "Qor/Math/Matrix.h"

namespace qor::fc::utilities {

/// Draws the entities that accept it; see `drawForDebug`.
class QOR_API DrawVisitor : public FcVisitorBase {
 public:
  DrawVisitor(const FcDrawParams& params, double pointRadius)
      : m_params(params), m_pointRadius(pointRadius) {}

  using FcVisitorBase::visit;
  bool visit(const resource::representation::FcRepresentation& representation) override;
  bool visit(const resource::representation::FcProductRepresentation& representation) override;
  bool visit(const resource::geometry::FcRepresentationItem& item) override;
  bool visit(const resource::geometricmodel::FcBooleanResult& result) override;
  bool visit(const resource::geometry::FcCartesianPoint& point) override;
  bool visit(const resource::geometry::FcPlacement& placement) override;
  bool visit(const resource::geometricconstraint::FcLocalPlacement& placement) override;
  bool visit(const resource::geometry::FcPlane& plane) override;

 private:
  void drawArrows(const math::Matrix& frame) const;

  FcDrawParams m_params;
  double m_pointRadius;
};

}  // namespace qor::fc::utilities
