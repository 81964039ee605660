#include "engine/render/light_list.h"

#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int firstUnit = 0x4000;  // GL_LIGHT0

class LightListTest : public RenderTest {
 protected:
  boost::shared_ptr<Light> add(bool enabled = true) {
    auto light = Light::create();
    light->setRenderingEnable(enabled);
    list.add(light, nullptr);
    return light;
  }

  static std::vector<boost::shared_ptr<Light>> lightsOf(int count) {
    std::vector<boost::shared_ptr<Light>> lights;
    for (int i = 0; i < count; ++i) {
      lights.push_back(Light::create());
    }
    return lights;
  }

  std::vector<boost::shared_ptr<Light>> entries() const {
    std::vector<boost::shared_ptr<Light>> all;
    for (int i = 0; i < list.count(); ++i) {
      all.push_back(list.get(i, nullptr));
    }
    return all;
  }

  LightList list;
};

}  // namespace

TEST_F(LightListTest, AddAnswersTheIndexAndGivesTheUnit) {
  auto first = Light::create();
  auto second = Light::create();
  EXPECT_EQ(list.add(first, nullptr), 0);
  EXPECT_EQ(list.add(second, nullptr), 1);
  EXPECT_EQ(first->getGLLight(), firstUnit);
  EXPECT_EQ(second->getGLLight(), firstUnit + 1);
  EXPECT_EQ(list.count(), 2);
}

TEST_F(LightListTest, TheListMayOutgrowTheUnits) {
  for (int i = 0; i < 40; ++i) {
    EXPECT_NO_THROW(add());
  }
  EXPECT_EQ(list.count(), 40);
  EXPECT_EQ(list.get(39, nullptr)->getGLLight(), firstUnit + 39);
}

TEST_F(LightListTest, ANullLightMeetsTheAssertion) {
  EXPECT_DEATH(list.add(nullptr, nullptr), "px != 0");
}

TEST_F(LightListTest, SetReplacesAndLeavesTheReplacedLightOn) {
  add();
  auto other = Light::create();
  list.set(0, other, nullptr);
  EXPECT_THAT(entries(), ElementsAre(other));
  EXPECT_EQ(other->getGLLight(), firstUnit);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(LightListTest, SetToNullErasesAndTheOthersMoveDownWithTheirUnits) {
  auto first = add();
  auto second = add();
  first->applyLight();
  list.set(0, nullptr, nullptr);
  EXPECT_THAT(entries(), ElementsAre(second));
  EXPECT_EQ(second->getGLLight(), firstUnit + 1);
  EXPECT_TRUE(first->isTransformChanged());
}

TEST_F(LightListTest, SetOutsideTheListIsRefused) {
  add();
  for (const int index : {-1, 1, 2}) {
    EXPECT_EQ(failureOf<std::out_of_range>([&] { list.set(index, Light::create(), nullptr); }),
              "index out of range");
    EXPECT_EQ(failureOf<std::out_of_range>([&] { list.set(index, nullptr, nullptr); }),
              "index out of range");
  }
}

TEST_F(LightListTest, GetOutsideTheListIsEmptyAndTheTransformIsNotFilled) {
  auto light = add();
  Transform transform;
  transform.postScale(2.0f, 3.0f, 4.0f);
  const Transform before = transform;
  EXPECT_EQ(list.get(0, &transform), light);
  EXPECT_FALSE(list.get(-1, &transform));
  EXPECT_FALSE(list.get(1, &transform));
  EXPECT_TRUE(std::equal(before.data(), before.data() + 16, transform.data()));
}

TEST_F(LightListTest, ResetMarksTheLightsAndSwitchesNothingOff) {
  auto light = add();
  light->applyLight();
  EXPECT_FALSE(light->isTransformChanged());
  driver.clear();
  list.reset();
  EXPECT_TRUE(light->isTransformChanged());
  EXPECT_EQ(list.count(), 0);
  list.applyLightScope(-1);
  EXPECT_THAT(take(), IsEmpty()) << "the unit stays lit for later draws";
}

TEST_F(LightListTest, ScopeSwitchesByTheNodesBits) {
  auto near = add();
  auto far = add();
  near->setScope(1);
  far->setScope(2);
  near->applyLight();
  far->applyLight();
  driver.clear();
  list.applyLightScope(1);
  EXPECT_THAT(take(), ElementsAre("glEnable(GL_LIGHT0)", "glDisable(GL_LIGHT1)"));
  list.applyLightScope(3);
  EXPECT_THAT(take(), ElementsAre("glEnable(GL_LIGHT0)", "glEnable(GL_LIGHT1)"));
  list.applyLightScope(0);
  EXPECT_THAT(take(), ElementsAre("glDisable(GL_LIGHT0)", "glDisable(GL_LIGHT1)"));
}

TEST_F(LightListTest, SyncTakesTheEnabledLightsInOrder) {
  auto lights = lightsOf(3);
  list.syncLights(lights);
  EXPECT_EQ(entries(), lights);
  list.syncLights(lights);
  EXPECT_EQ(entries(), lights);
}

TEST_F(LightListTest, SyncWithFewerLightsStartsAfresh) {
  list.syncLights(lightsOf(3));
  auto fewer = lightsOf(2);
  fewer[0]->setRenderingEnable(false);
  list.syncLights(fewer);
  EXPECT_THAT(entries(), ElementsAre(fewer[1]));
  EXPECT_EQ(fewer[1]->getGLLight(), firstUnit);
}

TEST_F(LightListTest, SyncPassesOverADisabledLightThatHasNoEntry) {
  auto lights = lightsOf(2);
  lights[0]->setRenderingEnable(false);
  EXPECT_NO_THROW(list.syncLights(lights));
  EXPECT_THAT(entries(), ElementsAre(lights[1]));
}

TEST_F(LightListTest, SyncReadsTheLengthAnewAfterAnErasure) {
  auto lights = lightsOf(3);
  list.syncLights(lights);
  lights[0]->setRenderingEnable(false);
  EXPECT_NO_THROW(list.syncLights(lights));
  EXPECT_THAT(entries(), ElementsAre(lights[1], lights[1], lights[2]));
  for (boost::shared_ptr<Light>& light : lights) {
    light->setRenderingEnable(false);
  }
  EXPECT_NO_THROW(list.syncLights(lights));
}

TEST_F(LightListTest, SyncWithALightDisabledInTheMiddle) {
  auto lights = lightsOf(3);
  list.syncLights(lights);
  lights[1]->setRenderingEnable(false);
  for (int frame = 0; frame < 3; ++frame) {
    EXPECT_NO_THROW(list.syncLights(lights));
    EXPECT_THAT(entries(), ElementsAre(lights[0], lights[2], lights[2]));
    EXPECT_EQ(lights[2]->getGLLight(), firstUnit + 2);
  }
}

TEST_F(LightListTest, SyncWithTwoDisabledLightsErasesTheEntryThatHasMovedDown) {
  auto lights = lightsOf(3);
  list.syncLights(lights);
  lights[0]->setRenderingEnable(false);
  lights[1]->setRenderingEnable(false);
  EXPECT_NO_THROW(list.syncLights(lights));
  EXPECT_THAT(entries(), ElementsAre(lights[1], lights[2]));
  EXPECT_EQ(lights[2]->getGLLight(), firstUnit + 1);
}
