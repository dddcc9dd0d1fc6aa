#include <iostream>

#include "Fc/Data.h"
#include "Fc/Shared/BuildingElements/FcWall.h"

int main() {
  const auto data = std::make_shared<qor::fc::Data>();
  data->entityCreate("IfcWall")->setAttributeFromString("Name", "Wall-1");
  for (const auto& wall : data->entities<qor::fc::shared::buildingelements::FcWall>()) {
    std::cout << wall->getAttributeAsString("Name").value_or("no name") << '\n';
  }
}
