#include "Fc/Resource/Topology/FcShell.h"

#include "Fc/Drawing/FcDrawParams.h"
#include "Fc/Model/Report.h"
#include "Fc/Resource/Topology/FcClosedShell.h"
#include "Fc/Resource/Topology/FcOpenShell.h"

namespace qor::fc::resource::topology {

std::shared_ptr<FcConnectedFaceSet> FcShell::connectedFaceSet() const {
  switch (type()) {
    case Types::ClosedShell:
      return ClosedShell();
    case Types::OpenShell:
      return OpenShell();
    case Types::NotSet:
      break;
  }
  return nullptr;
}

void FcShell::draw(const FcDrawParams& params) const {
  if (const auto shell = connectedFaceSet())
    params->drawConstRepresentationItem(shell, params, generate::draw::SurfaceDrawType::Surface);
}

void FcShell::transform(const math::Matrix& matrix) const {
  if (const auto shell = connectedFaceSet())
    shell->transform(matrix);
  else
    report("Expect to have a valid connected face set");
}

std::optional<math::Extent> FcShell::boundingBox(const FcParams& params) const {
  const auto shell = connectedFaceSet();
  return shell ? shell->boundingBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::topology
