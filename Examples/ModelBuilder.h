#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcTypeObject.h"
#include "Fc/Core/ProductExtension/FcSpatialElement.h"
#include "Fc/Data.h"
#include "Host/StepFile/StepWriter.h"
#include "Qor/Math/Matrix.h"

namespace sample {

// The rooms of the schema whose classes the examples use.
using namespace qor;
using namespace qor::fc::core::kernel;
using namespace qor::fc::core::productextension;

/// A frame that is moved, not turned; in metres.
constexpr math::Matrix at(double x, double y, double z) {
  return math::Matrix::createTranslation({x, y, z});
}

/// A model in the making: makes entities, gives them identity and place, and relates them.
class ModelBuilder {
 public:
  fc::Data& data() { return *m_data; }

  /// A new entity, listed in the model. The numbers are those of the file: a program that doesn't
  /// give any has its entities numbered class by class.
  template <class T>
  std::shared_ptr<T> create() {
    auto entity = m_data->create<T>();
    m_numbers.push_back({m_numbers.size() + 1, entity});
    return entity;
  }
  /// The same for what has an identity; relationships have no name.
  template <class T>
  std::shared_ptr<T> createRoot(const std::string& name = {}) {
    auto root = create<T>();
    identify(*root);
    if (!name.empty()) root->setName(name);
    return root;
  }
  /// All of a class, as a list that an attribute takes.
  template <class T, class As = T>
  std::vector<std::shared_ptr<As>> all() const {
    const auto found = m_data->entities<T>();
    return {found.begin(), found.end()};
  }

  /// Places a product in the frame of another one, or in that of the model.
  void place(FcProduct& product, const math::Matrix& frame, const std::shared_ptr<FcProduct>& in);
  void aggregate(const std::shared_ptr<FcObjectDefinition>& whole,
                 std::vector<std::shared_ptr<FcObjectDefinition>> parts);
  void contain(const std::shared_ptr<FcSpatialElement>& structure,
               std::vector<std::shared_ptr<FcProduct>> elements);
  /// One relationship for each type, whatever the number of its occurrences.
  void setType(FcObject& occurrence, FcTypeObject& type);

  host::step::WriteResult write(const std::filesystem::path& path) const;

 private:
  /// `Guid::generate()` is what a program would take here; these are counted so that every run
  /// gives the same file.
  void identify(FcRoot& root);

  std::shared_ptr<fc::Data> m_data = std::make_shared<fc::Data>();
  std::vector<host::step::NumberedEntity> m_numbers;
  std::uint32_t m_rootCount = 0;
};

}  // namespace sample
