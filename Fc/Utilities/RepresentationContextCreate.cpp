#include "Fc/Utilities/RepresentationContextCreate.h"

#include <vector>

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Resource/Representation/FcGeometricRepresentationSubContext.h"
#include "Fc/Resource/Representation/FcProductDefinitionShape.h"

namespace qor::fc::utilities {

void RepresentationContextCreate::shapeRepresentationAdd(ContextFactory contextFactory,
                                                         Action action) {
  const auto project = m_data->project();
  if (!project) return;
  const std::shared_ptr<SubContext> context = contextFactory(project);
  std::vector<std::shared_ptr<Shape>> shapes;
  for (std::shared_ptr<Shape> shape : m_data->entities<Shape>()) shapes.push_back(std::move(shape));
  for (const std::shared_ptr<Shape>& shape : shapes) action(context, shape);
}

}  // namespace qor::fc::utilities
