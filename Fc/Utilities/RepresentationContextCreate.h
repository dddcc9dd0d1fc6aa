#pragma once

#include <functional>
#include <memory>

#include "Qor/Platform/Export.h"

namespace qor::fc {
class Data;
}
namespace qor::fc::core::kernel {
class FcProject;
}
namespace qor::fc::resource::representation {
class FcGeometricRepresentationSubContext;
class FcProductDefinitionShape;
}  // namespace qor::fc::resource::representation

namespace qor::fc::utilities {

/// Gives all shapes of a model something in one representation context.
class QOR_API RepresentationContextCreate {
 public:
  using SubContext = resource::representation::FcGeometricRepresentationSubContext;
  using Shape = resource::representation::FcProductDefinitionShape;
  using ContextFactory =
      std::function<std::shared_ptr<SubContext>(const std::shared_ptr<core::kernel::FcProject>&)>;
  using Action =
      std::function<void(const std::shared_ptr<SubContext>&, const std::shared_ptr<Shape>&)>;

  explicit RepresentationContextCreate(std::shared_ptr<Data> data) : m_data(std::move(data)) {}

  /// Calls `action` with the context that `contextFactory` gives for the project and each shape
  /// that the model has at the start. Nothing for a model without a project.
  void shapeRepresentationAdd(ContextFactory contextFactory, Action action);

 private:
  std::shared_ptr<Data> m_data;
};

}  // namespace qor::fc::utilities
