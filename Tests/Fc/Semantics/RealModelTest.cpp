#include <gtest/gtest.h>

#include <set>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Core/Kernel/FcPropertySet.h"
#include "Fc/Core/Kernel/FcRelDefinesByProperties.h"
#include "Fc/Core/Kernel/FcTypeProduct.h"
#include "Fc/Resource/Property/FcProperty.h"
#include "Fc/Utilities/MergedPset.h"
#include "Tests/Support/RealModel.h"

namespace qor::fc {
namespace {

using namespace core::kernel;
using Types = core::kernel::FcPropertySetDefinitionSelect::Types;

using Attachment = std::pair<const FcObjectDefinition*, const FcPropertySetDefinition*>;

// As the relationships and the types say, whatever the objects answer.
std::multiset<Attachment> attachmentsOf(const Data& data) {
  std::multiset<Attachment> result;
  for (const auto& relation : data.entities<FcRelDefinesByProperties>())
    for (const auto& object : relation->RelatedObjects()) {
      const auto& sets = relation->RelatingPropertyDefinition();
      if (sets.type() == Types::PropertySetDefinition)
        result.emplace(object.get(), sets.PropertySetDefinition().get());
      else
        for (const auto& set : sets.PropertySetDefinitionSet().value())
          result.emplace(object.get(), set.get());
    }
  for (const auto& type : data.entities<FcTypeObject>())
    if (type->HasPropertySets())
      for (const auto& set : *type->HasPropertySets()) result.emplace(type.get(), set.get());
  return result;
}

std::set<std::string> namesIn(const FcPropertySet& set) {
  std::set<std::string> names;
  for (const auto& property : set.HasProperties()) names.insert(property->Name());
  return names;
}

using RealModelPropertySets = test::RealModelTest;

TEST_P(RealModelPropertySets, TellsEachSetOnEachOfItsObjects) {
  std::multiset<Attachment> found;
  for (const std::shared_ptr<FcObjectDefinition> object : data->entities<FcObjectDefinition>())
    for (const auto& set : object->getPropertySetDefinitions<FcPropertySetDefinition>()) {
      found.emplace(object.get(), set.get());
      ASSERT_TRUE(set->Name());
      const auto named =
          object->getPropertySetDefinitionNonConst<FcPropertySetDefinition>(*set->Name());
      EXPECT_EQ(named->Name(), set->Name());
    }
  EXPECT_EQ(found, attachmentsOf(*data));
}

TEST_P(RealModelPropertySets, MergesEachSetWithThatOfTheType) {
  for (const std::shared_ptr<FcProduct> product : data->entities<FcProduct>()) {
    const auto type = fcCast<const FcTypeProduct>(product->getTypeObject());
    for (const auto& each : product->getPropertySetDefinitions<FcPropertySet>()) {
      ASSERT_TRUE(each->Name());
      const auto own = product->getPropertySetDefinitionNonConst<FcPropertySet>(*each->Name());
      const auto [merged, store] =
          utilities::detail::getMergedPset(*own->Name(), product.get(), type.get());
      std::set<std::string> expected = namesIn(*own);
      const auto typed =
          type ? type->getPropertySetDefinitionNonConst<FcPropertySet>(*own->Name()) : nullptr;
      if (typed) expected.merge(namesIn(*typed));
      EXPECT_EQ(namesIn(*fcCast<const FcPropertySet>(merged)), expected);
    }
  }
}

FC_INSTANTIATE_FOR_MODELS(RealModelPropertySets, test::allModels());

}  // namespace
}  // namespace qor::fc
