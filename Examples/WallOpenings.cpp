#include "Examples/WallOpenings.h"

#include "Fc/Core/ProductExtension/FcRelFillsElement.h"
#include "Fc/Core/ProductExtension/FcRelVoidsElement.h"

namespace sample {

namespace {

constexpr double windowWidth = 1.5;
constexpr double windowHeight = 1.2;
constexpr double roundRadius = 0.4;
constexpr double doorWidth = 1.0;
constexpr double doorHeight = 2.1;

constexpr double frameWidth = 0.07;  // seen from the front
constexpr double frameBack = 0.17;   // from the outer face of the wall
constexpr double frameDepth = 0.08;
constexpr double paneBack = 0.14;
constexpr double paneDepth = 0.02;

/// A plane that stands upright and looks out of the wall: X along the wall, Y up, Z outward.
math::Matrix upright(double x, double y, double z) {
  return {math::Point3d(x, y, z), math::Vector3d(1, 0, 0), math::Vector3d(0, -1, 0)};
}

}  // namespace

// An opening has a body of its own, larger than the wall is thick, so that no skin remains.

std::shared_ptr<FcOpeningElement> WallOpenings::cut(const std::shared_ptr<FcElement>& element,
                                                    const std::string& name,
                                                    const math::Matrix& frame, const Item& hole) {
  auto opening = m_model.createRoot<FcOpeningElement>(name);
  m_model.place(*opening, frame, element);
  opening->setPredefinedType(FcOpeningElementTypeEnum::OPENING);
  m_shapes.showBody(*opening, RepresentationType::SweptSolid, {hole});
  auto relation = m_model.createRoot<FcRelVoidsElement>();
  relation->setRelatingBuildingElement(element);
  relation->setRelatedOpeningElement(opening);
  return opening;
}

template <class T>
std::shared_ptr<T> WallOpenings::fill(const std::string& name,
                                      const std::shared_ptr<FcElement>& wall,
                                      const math::Matrix& frame, const Item& hole,
                                      FcTypeProduct& type) {
  const auto opening = cut(wall, name + ", opening", frame, hole);
  auto filling = m_model.createRoot<T>(name);
  m_model.place(*filling, {}, opening);
  m_model.setType(*filling, type);
  m_shapes.showBodyOfType(*filling, type);
  auto relation = m_model.createRoot<FcRelFillsElement>();
  relation->setRelatingOpeningElement(opening);
  relation->setRelatedBuildingElement(filling);
  return filling;
}

Item WallOpenings::rectangularHole(double width, double height) {
  return m_shapes.box({0, -0.1, 0}, width, 0.44, height);
}

std::shared_ptr<FcWindow> WallOpenings::addWindow(const std::string& name,
                                                  const std::shared_ptr<FcElement>& wall, double x,
                                                  double z) {
  if (!m_window) m_window = createWindowType();
  auto window = fill<FcWindow>(name, wall, at(x, 0, z), rectangularHole(windowWidth, windowHeight),
                               *m_window);
  window->setOverallHeight(windowHeight);
  window->setOverallWidth(windowWidth);
  return window;
}

std::shared_ptr<FcWindow> WallOpenings::addRoundWindow(const std::string& name,
                                                       const std::shared_ptr<FcElement>& wall,
                                                       double x, double z) {
  if (!m_roundWindow) m_roundWindow = createRoundWindowType();
  const Item hole = m_shapes.extrude(m_shapes.circle(roundRadius), 0.44, upright(0, 0.34, 0));
  auto window = fill<FcWindow>(name, wall, at(x, 0, z), hole, *m_roundWindow);
  window->setOverallHeight(2 * roundRadius);
  window->setOverallWidth(2 * roundRadius);
  return window;
}

std::shared_ptr<FcDoor> WallOpenings::addDoor(const std::string& name,
                                              const std::shared_ptr<FcElement>& wall, double x,
                                              FcDoorType& type) {
  auto door = fill<FcDoor>(name, wall, at(x, 0, 0), rectangularHole(doorWidth, doorHeight), type);
  door->setOverallHeight(doorHeight);
  door->setOverallWidth(doorWidth);
  return door;
}

std::shared_ptr<FcDoor> WallOpenings::addFrontDoor(const std::shared_ptr<FcElement>& wall,
                                                   double x) {
  return addDoor("Front door", wall, x, *createFrontDoorType());
}

std::shared_ptr<FcDoor> WallOpenings::addBalconyDoor(const std::shared_ptr<FcElement>& wall,
                                                     double x) {
  return addDoor("Balcony door", wall, x, *createBalconyDoorType());
}

// The shapes of the types, from the lower left corner of the opening or from its middle.

std::shared_ptr<FcWindowType> WallOpenings::createWindowType() {
  auto type = m_model.createRoot<FcWindowType>("Window 1.50 x 1.20");
  type->setPredefinedType(FcWindowTypeEnum::WINDOW);
  type->setPartitioningType(FcWindowTypePartitioningEnum::DOUBLE_PANEL_VERTICAL);
  constexpr double inner = windowHeight - 2 * frameWidth;
  constexpr double paneWidth = (windowWidth - 3 * frameWidth) / 2;
  const auto upTo = [](double x) { return upright(x, frameBack, windowHeight / 2); };
  const auto pane = [&](double x) {
    return m_shapes.painted(substance::glass,
                            m_shapes.extrude(m_shapes.rectangle(paneWidth, inner), paneDepth,
                                             upright(x, paneBack, windowHeight / 2)));
  };
  const Item frame = m_shapes.painted(
      substance::paintedWood,
      m_shapes.extrude(m_shapes.hollowRectangle(windowWidth, windowHeight, frameWidth), frameDepth,
                       upTo(windowWidth / 2)));
  const Item mullion = m_shapes.painted(
      substance::paintedWood,
      m_shapes.extrude(m_shapes.rectangle(frameWidth, inner), frameDepth, upTo(windowWidth / 2)));
  m_shapes.setBody(*type, RepresentationType::SweptSolid,
                   {frame, mullion, pane(frameWidth + paneWidth / 2),
                    pane(windowWidth - frameWidth - paneWidth / 2)});
  return type;
}

std::shared_ptr<FcWindowType> WallOpenings::createRoundWindowType() {
  auto type = m_model.createRoot<FcWindowType>("Round window 0.80");
  type->setPredefinedType(FcWindowTypeEnum::WINDOW);
  type->setPartitioningType(FcWindowTypePartitioningEnum::SINGLE_PANEL);
  const Item frame = m_shapes.painted(
      substance::paintedWood, m_shapes.extrude(m_shapes.ring(roundRadius, frameWidth), frameDepth,
                                               upright(0, frameBack, 0)));
  const Item pane =
      m_shapes.painted(substance::glass, m_shapes.extrude(m_shapes.circle(roundRadius - frameWidth),
                                                          paneDepth, upright(0, paneBack, 0)));
  m_shapes.setBody(*type, RepresentationType::SweptSolid, {frame, pane});
  return type;
}

std::shared_ptr<FcDoorType> WallOpenings::createDoorType(const std::string& name) {
  auto type = m_model.createRoot<FcDoorType>(name);
  type->setPredefinedType(FcDoorTypeEnum::DOOR);
  type->setOperationType(FcDoorTypeOperationEnum::SINGLE_SWING_LEFT);
  return type;
}

std::shared_ptr<FcDoorType> WallOpenings::createFrontDoorType() {
  constexpr double w = doorWidth, h = doorHeight, f = frameWidth;
  auto type = createDoorType("Oak door");
  const Item frame = m_shapes.painted(
      substance::paintedWood,
      m_shapes.extrude(
          m_shapes.polygon(
              {{0, 0}, {f, 0}, {f, h - f}, {w - f, h - f}, {w - f, 0}, {w, 0}, {w, h}, {0, h}}),
          frameDepth, upright(0, frameBack, 0)));
  const Item leaf = m_shapes.painted(
      substance::oak, m_shapes.extrude(m_shapes.polygonWithHole(
                                           {{f, 0.01}, {w - f, 0.01}, {w - f, h - f}, {f, h - f}},
                                           {{0.38, 1.2}, {0.62, 1.2}, {0.62, 1.85}, {0.38, 1.85}}),
                                       0.05, upright(0, 0.16, 0)));
  const Item pane =
      m_shapes.painted(substance::glass, m_shapes.box({0.38, 0.12, 1.2}, 0.24, paneDepth, 0.65));
  const Item handle = m_shapes.painted(
      substance::steel,
      m_shapes.rod({{0.84, 0.11, 1.05}, {0.84, 0.05, 1.05}, {0.72, 0.05, 1.05}}, 0.01, 0.02));
  m_shapes.setBody(*type, RepresentationType::SolidModel, {frame, leaf, pane, handle});
  return type;
}

std::shared_ptr<FcDoorType> WallOpenings::createBalconyDoorType() {
  constexpr double w = doorWidth, h = doorHeight;
  auto type = createDoorType("Glazed door");
  const Item frame = m_shapes.painted(
      substance::paintedWood, m_shapes.extrude(m_shapes.hollowRectangle(w, h, 0.1), frameDepth,
                                               upright(w / 2, frameBack, h / 2)));
  const Item pane = m_shapes.painted(
      substance::glass, m_shapes.extrude(m_shapes.rectangle(w - 0.2, h - 0.2), paneDepth,
                                         upright(w / 2, paneBack, h / 2)));
  m_shapes.setBody(*type, RepresentationType::SweptSolid, {frame, pane});
  return type;
}

}  // namespace sample
