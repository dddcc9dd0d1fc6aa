#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Qor/Localization/Dictionaries.h"
#include "Qor/Localization/LocalizationService.h"

namespace qor::localization {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(Localization, GivesTheDictionariesOfADomainInTheOrderOfTheirRegistration) {
  EXPECT_THAT(Dictionaries::getContexts("IFC"), IsEmpty());
  const DictionaryContext german("IFC", {{"IfcWall.Name", "Bezeichnung"}});
  const DictionaryContext other("Host", {{"IfcWall.Name", "no"}});
  const DictionaryContext english("IFC", {{"IfcWall.Name", "Label"}, {"IfcWall.Tag", "Mark"}});
  for (const DictionaryContext& each : {german, other, english}) Dictionaries::add(each);
  const auto contexts = Dictionaries::getContexts("IFC");
  ASSERT_THAT(contexts, ElementsAre(german, english));

  const DictionaryContext sameTexts("IFC", {{"IfcWall.Name", "Bezeichnung"}});
  EXPECT_FALSE(Dictionaries::remove(sameTexts)) << "equal texts don't make it the same dictionary";
  for (const DictionaryContext& each : {german, other, english}) {
    EXPECT_TRUE(Dictionaries::remove(each));
    EXPECT_FALSE(Dictionaries::remove(each));
  }
  EXPECT_THAT(Dictionaries::getContexts("IFC"), IsEmpty());

  // Those that hold one keep it.
  const LocalizationService& service = resource::localization::getAdminInstance();
  EXPECT_THAT(service.getText(contexts[0], "IfcWall.Name"), Optional(std::string("Bezeichnung")));
  EXPECT_EQ(service.getText(contexts[0], "IfcWall.Tag"), std::nullopt);
  EXPECT_THAT(service.getText(contexts[1], "IfcWall.Tag"), Optional(std::string("Mark")));
  EXPECT_EQ(service.getText(contexts[1], "ifcwall.tag"), std::nullopt);
}

}  // namespace
}  // namespace qor::localization
