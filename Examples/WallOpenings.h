#pragma once

#include <memory>
#include <string>

#include "Examples/ShapeBuilder.h"
#include "Fc/Core/ProductExtension/FcElement.h"
#include "Fc/Core/ProductExtension/FcOpeningElement.h"
#include "Fc/Shared/BuildingElements/FcDoor.h"
#include "Fc/Shared/BuildingElements/FcDoorType.h"
#include "Fc/Shared/BuildingElements/FcWindow.h"
#include "Fc/Shared/BuildingElements/FcWindowType.h"

namespace sample {

using namespace qor::fc::shared::buildingelements;

/// Cuts openings into walls and slabs and puts windows and doors into them.
///
/// A wall's frame has X along it and Y into it, from its outer face on. Equal windows share one
/// type, which holds their shape.
class WallOpenings {
 public:
  WallOpenings(ModelBuilder& model, ShapeBuilder& shapes) : m_model(model), m_shapes(shapes) {}

  /// Whatever of `element` lies in `hole`, a body in the frame `frame` of the element, is cut away.
  std::shared_ptr<FcOpeningElement> cut(const std::shared_ptr<FcElement>& element,
                                        const std::string& name, const math::Matrix& frame,
                                        const Item& hole);

  /// A window of 1.50 by 1.20 m, whose lower left corner stands at `x` along the wall.
  std::shared_ptr<FcWindow> addWindow(const std::string& name,
                                      const std::shared_ptr<FcElement>& wall, double x, double z);
  /// A round one of 0.80 m around that place.
  std::shared_ptr<FcWindow> addRoundWindow(const std::string& name,
                                           const std::shared_ptr<FcElement>& wall, double x,
                                           double z);
  std::shared_ptr<FcDoor> addFrontDoor(const std::shared_ptr<FcElement>& wall, double x);
  std::shared_ptr<FcDoor> addBalconyDoor(const std::shared_ptr<FcElement>& wall, double x);

 private:
  template <class T>
  std::shared_ptr<T> fill(const std::string& name, const std::shared_ptr<FcElement>& wall,
                          const math::Matrix& frame, const Item& hole, FcTypeProduct& type);
  Item rectangularHole(double width, double height);
  std::shared_ptr<FcDoor> addDoor(const std::string& name, const std::shared_ptr<FcElement>& wall,
                                  double x, FcDoorType& type);

  std::shared_ptr<FcWindowType> createWindowType();
  std::shared_ptr<FcWindowType> createRoundWindowType();
  std::shared_ptr<FcDoorType> createFrontDoorType();
  std::shared_ptr<FcDoorType> createBalconyDoorType();
  std::shared_ptr<FcDoorType> createDoorType(const std::string& name);

  ModelBuilder& m_model;
  ShapeBuilder& m_shapes;
  std::shared_ptr<FcWindowType> m_window;
  std::shared_ptr<FcWindowType> m_roundWindow;
};

}  // namespace sample
