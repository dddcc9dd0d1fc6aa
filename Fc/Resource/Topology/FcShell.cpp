#include "Fc/Resource/Topology/FcShell.h"

#include "Fc/FcDrawParams.h"
#include "Fc/Resource/Report.h"
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
    report("Expect to have a valid connected face set",
           "qor::fc::resource::topology::FcShell::transform", __LINE__);
}

std::optional<math::Extent> FcShell::boundingBox(const FcParams& params) const {
  const auto shell = connectedFaceSet();
  return shell ? shell->boundingBox(params) : std::nullopt;
}

}  // namespace qor::fc::resource::topology
