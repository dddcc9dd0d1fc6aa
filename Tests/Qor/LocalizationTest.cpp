#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Qor/Localization/Dictionaries.h"
#include "Qor/Localization/LocalizationService.h"

namespace qor::localization {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// A dictionary that is registered while this lives.
class Registration {
 public:
  explicit Registration(DictionaryContext context) : m_context(std::move(context)) {
    Dictionaries::add(m_context);
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
  ~Registration() { EXPECT_TRUE(Dictionaries::remove(m_context)); }

 private:
  DictionaryContext m_context;
};

TEST(Localization, HasNoDictionaryAtTheStart) {
  EXPECT_THAT(Dictionaries::getContexts("IFC"), IsEmpty());
}

TEST(Localization, GivesTheDictionariesOfADomainInTheOrderOfTheirRegistration) {
  const DictionaryContext german("IFC", {{"IfcWall.Name", "Bezeichnung"}});
  const DictionaryContext other("Host", {{"IfcWall.Name", "no"}});
  const DictionaryContext english("IFC", {{"IfcWall.Name", "Label"}, {"IfcWall.Tag", "Mark"}});
  const Registration first(german);
  const Registration between(other);
  const Registration second(english);

  const auto contexts = Dictionaries::getContexts("IFC");
  ASSERT_THAT(contexts, ElementsAre(german, english));

  const LocalizationService& service = resource::localization::getAdminInstance();
  EXPECT_THAT(service.getText(contexts[0], "IfcWall.Name"), Optional(std::string("Bezeichnung")));
  EXPECT_EQ(service.getText(contexts[0], "IfcWall.Tag"), std::nullopt);
  EXPECT_THAT(service.getText(contexts[1], "IfcWall.Tag"), Optional(std::string("Mark")));
  EXPECT_EQ(service.getText(contexts[1], "ifcwall.tag"), std::nullopt);
}

TEST(Localization, WithdrawsADictionaryOnceAndKeepsItForThoseThatHoldIt) {
  const DictionaryContext context("IFC", {{"key", "text"}});
  const DictionaryContext sameTexts("IFC", {{"key", "text"}});
  Dictionaries::add(context);
  const auto held = Dictionaries::getContexts("IFC");
  EXPECT_FALSE(Dictionaries::remove(sameTexts)) << "equal texts don't make it the same dictionary";
  EXPECT_TRUE(Dictionaries::remove(context));
  EXPECT_FALSE(Dictionaries::remove(context));
  EXPECT_THAT(Dictionaries::getContexts("IFC"), IsEmpty());
  EXPECT_THAT(resource::localization::getAdminInstance().getText(held.at(0), "key"),
              Optional(std::string("text")));
}

}  // namespace
}  // namespace qor::localization
