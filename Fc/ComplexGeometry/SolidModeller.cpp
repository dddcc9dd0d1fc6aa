#include "Fc/ComplexGeometry/SolidModeller.h"

#include "Fc/Model/Report.h"
#include "Qor/Platform/SharedLibrary.h"

namespace qor::fc {
namespace {

const SolidModeller* openModeller() {
  using Maker = const SolidModeller* (*)();
  static SharedLibrary library(QOR_SHARED_LIBRARY_NAME("FcOpenCascade"));
  const auto make = library.find<Maker>("fcOpenCascadeModeller");
  if (make) return make();
  report("The solid modeller can't be opened: " + library.error());
  return nullptr;
}

}  // namespace

SolidModeller::~SolidModeller() = default;

const SolidModeller* SolidModeller::get() {
  static const SolidModeller* const modeller = openModeller();
  return modeller;
}

}  // namespace qor::fc
