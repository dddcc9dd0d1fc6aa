#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Fc/FcVisitorBase.h"
#include "Fc/FcVisitorBaseNonConst.h"
#include "Fc/Shared/BuildingElements/FcWallStandardCase.h"
#include "Tests/Fc/Values.h"

namespace qor::fc {
namespace {

using core::kernel::FcRoot;
using core::productextension::FcElement;
using shared::buildingelements::FcWall;
using testing::ElementsAre;

// Notes the classes that it is shown; `lastClass` is the one that it answers false for.
class NotingVisitor : public FcVisitorBase {
 public:
  explicit NotingVisitor(std::string lastClass = {}) : m_lastClass(std::move(lastClass)) {}
  using FcVisitorBase::visit;
  bool visit(const FcWall&) override { return note("FcWall"); }
  bool visit(const FcElement&) override { return note("FcElement"); }
  bool visit(const FcRoot&) override { return note("FcRoot"); }
  void visit(const FcBase&) override { note("FcBase"); }

  std::vector<std::string> seen;

 private:
  bool note(const char* name) {
    seen.emplace_back(name);
    return name != m_lastClass;
  }
  std::string m_lastClass;
};

std::vector<std::string> seenBy(NotingVisitor visitor, const char* ifcName) {
  test::make(ifcName)->accept(visitor);
  return visitor.seen;
}

TEST(Visitor, SeesAnEntityAsItsClassAndThenAsEachSupertype) {
  EXPECT_THAT(seenBy(NotingVisitor(), "IfcWallStandardCase"),
              ElementsAre("FcWall", "FcElement", "FcRoot", "FcBase"));
  EXPECT_THAT(seenBy(NotingVisitor(), "IfcSlab"), ElementsAre("FcElement", "FcRoot", "FcBase"));
  EXPECT_THAT(seenBy(NotingVisitor(), "IfcCartesianPoint"), ElementsAre("FcBase"));
  // A class without a supertype that is finished by hand, and one below it.
  EXPECT_THAT(seenBy(NotingVisitor(), "IfcGeometricRepresentationSubContext"),
              ElementsAre("FcBase"));
}

TEST(Visitor, StopsWhereItAnswersFalse) {
  EXPECT_THAT(seenBy(NotingVisitor("FcWall"), "IfcWall"), ElementsAre("FcWall"));
  EXPECT_THAT(seenBy(NotingVisitor("FcElement"), "IfcWall"), ElementsAre("FcWall", "FcElement"));
}

TEST(Visitor, MayChangeTheEntityInTheOtherForm) {
  class Renamer : public FcVisitorBaseNonConst {
   public:
    using FcVisitorBaseNonConst::visit;
    bool visit(FcWall& wall) override {
      wall.setName("renamed");
      return m_goOn;
    }
    bool visit(FcRoot& root) override {
      root.setDescription("described");
      return true;
    }
    void visit(FcBase& entity) override { last = &entity; }
    explicit Renamer(bool goOn) : m_goOn(goOn) {}
    FcBase* last = nullptr;

   private:
    bool m_goOn;
  };
  for (const bool goOn : {true, false}) {
    const auto wall = std::make_shared<FcWall>();
    Renamer renamer(goOn);
    wall->accept(renamer);
    EXPECT_EQ(wall->Name(), "renamed");
    EXPECT_EQ(wall->Description().has_value(), goOn);
    EXPECT_EQ(renamer.last, goOn ? wall.get() : nullptr);
  }
}

}  // namespace
}  // namespace qor::fc
