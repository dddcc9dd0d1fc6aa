#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fc/Document/Document.h"
#include "Fc/Resource/Geometry/FcCartesianTransformationOperator2D.h"
#include "Fc/Resource/PresentationAppearance/FcBlobTexture.h"
#include "Fc/Resource/PresentationAppearance/FcColourRgb.h"
#include "Fc/Resource/PresentationAppearance/FcCurveStyle.h"
#include "Fc/Resource/PresentationAppearance/FcImageTexture.h"
#include "Fc/Resource/PresentationAppearance/FcPixelTexture.h"
#include "Fc/Resource/PresentationAppearance/FcStyledItem.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyle.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleRendering.h"
#include "Fc/Resource/PresentationAppearance/FcSurfaceStyleWithTextures.h"
#include "Fc/Resource/PresentationAppearance/FcTextStyle.h"
#include "Tests/Fc/Draw/Drawing.h"
#include "Tests/Support/ExpectAsserts.h"
#include "Tests/Support/Make.h"

namespace qor::fc {
namespace {

using namespace resource::presentationappearance;
using generate::draw::Color;
using test::ExpectAsserts;
using test::make;
using testing::ElementsAre;
using testing::IsEmpty;

class Styles : public testing::Test {
 protected:
  using Item = test::SmallModel::Item;

  std::shared_ptr<FcColourRgb> colour(double red, double green, double blue) {
    return make<FcColourRgb>({{"Red", red}, {"Green", green}, {"Blue", blue}});
  }
  std::shared_ptr<FcSurfaceStyle> surface(std::vector<FcSurfaceStyleElementSelect> elements) {
    auto style = make<FcSurfaceStyle>();
    style->setStyles(std::move(elements));
    return style;
  }
  std::shared_ptr<FcSurfaceStyleShading> shading(double red) {
    return make<FcSurfaceStyleShading>({{"SurfaceColour", colour(red, 0, 0)}});
  }
  std::shared_ptr<FcCurveStyle> curve(double blue) {
    return make<FcCurveStyle>({{"CurveColour", colour(0, 0, blue)}});
  }
  Item styled(const std::vector<std::shared_ptr<FcPresentationStyle>>& styles) {
    auto item = model.line();
    auto styledItem = model.data->create<FcStyledItem>();
    styledItem->setStyles(styles);
    styledItem->setItem(item);
    return item;
  }
  std::vector<std::string> materials(const std::vector<Item>& items) {
    model.give(*model.storey, {model.shape("Body", items)});
    test::RecordingTarget target;
    document::Document(model.data).generate(target);
    return target.callsOf("material");
  }

  test::SmallModel model;
};

TEST_F(Styles, OfSeveralOfAKindTheLastCountsAndSurfacesBeforeCurves) {
  EXPECT_THAT(materials({styled({curve(1), surface({shading(0.25), shading(0.5)}), nullptr}),
                         styled({curve(1), make<FcTextStyle>(), curve(0.5)})}),
              ElementsAre("material 0.5 0 0", "material 0 0 0.5"));
}

TEST_F(Styles, AnItemWithoutKeepsTheMaterialBeforeIt) {
  EXPECT_THAT(materials({model.line(), model.line(), styled({surface({shading(1)})}), model.line(),
                         styled({surface({})})}),
              ElementsAre("material 0.600000024 0.600000024 0.600000024", "material 1 0 0"));
}

TEST_F(Styles, BecomeOneMaterialEachHoweverOftenTheyAreUsed) {
  const auto shared = shading(1);
  std::vector<Item> items;
  for (int i = 0; i < 100; ++i) {
    items.push_back(styled({surface({shared})}));
    items.push_back(styled({curve(0.5)}));
  }
  test::RecordingTarget target;
  test::drawn(model.mapped(model.map(items)), target);
  EXPECT_EQ(target.callsOf("material").size(), 201U);
  EXPECT_EQ(target.materials.size(), 3U);  // the mapped item has no style
}

TEST_F(Styles, RenderingsGiveTheirFurtherColours) {
  const auto rendering = make<FcSurfaceStyleRendering>({{"SurfaceColour", colour(0.5, 1, 0)},
                                                        {"SpecularColour", colour(1, 1, 1)},
                                                        {"Transparency", 0.25}});
  rendering->setDiffuseColour(resource::measure::FcNormalisedRatioMeasure(0.5));
  rendering->setSpecularHighlight(FcSpecularExponent(12));
  const auto material = rendering->getMaterial();
  EXPECT_EQ(material->getSurfaceColor(), Color(0.5F, 1, 0));
  EXPECT_EQ(material->getDiffuseColor(), Color(0.25F, 0.5F, 0));
  EXPECT_EQ(material->getSpecularColor(), Color(1, 1, 1));
  EXPECT_EQ(material->getReflectionColor(), Color());
  EXPECT_EQ(material->getOpacity(), 0.75F);
  EXPECT_EQ(material->getSpecularHighlight(), 12.0F);
  constexpr int expected[] = {0, 1, 2, 3, 4, 5, 6, 8, 7, 9, 10};
  for (int method = 0; method < 11; ++method) {
    rendering->setReflectanceMethod(static_cast<FcReflectanceMethodEnum::Enum>(method));
    EXPECT_EQ(static_cast<int>(rendering->getMaterial()->getReflectanceMehod().value()),
              expected[method]);
  }
  EXPECT_EQ(FcSurfaceStyleShading().getMaterial()->getSurfaceColor(), Color(0, 0, 0));
}

TEST_F(Styles, TexturesGiveTheirImages) {
  const auto image =
      make<FcImageTexture>({{"URLReference", "brick.png"}, {"RepeatS", true}, {"RepeatT", false}});
  const auto blob = make<FcBlobTexture>({{"RasterFormat", "PNG"}});
  blob->setRasterCode({1, 2, 3});
  const auto pixels = make<FcPixelTexture>({{"Width", 2}, {"Height", 1}, {"ColourComponents", 3}});
  pixels->setPixel({{1, 2, 3}, {4, 5, 6}});
  const auto textures = make<FcSurfaceStyleWithTextures>();
  textures->setTextures({image, nullptr, blob, pixels});
  test::RecordingTarget target;
  test::drawn(styled({surface({shading(1), textures})}), target);
  const auto found = target.getMaterial()->getDiffuseTextures();
  ASSERT_EQ(found.size(), 3U);
  EXPECT_EQ(found[0].location, "brick.png");
  EXPECT_TRUE(found[0].repeatS && !found[0].repeatT);
  EXPECT_THAT(found[1].file, ElementsAre(1, 2, 3));
  EXPECT_THAT(found[2].pixels, ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(found[2].components, 3U);

  pixels->setHeight(2);
  const ExpectAsserts expected({"Pixels of a texture don't fit its size: 2 for 2 by 2"});
  EXPECT_THAT(pixels->getTexture().pixels, IsEmpty());
}

}  // namespace
}  // namespace qor::fc
