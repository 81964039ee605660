#include "engine/animation/animation_controller.h"

#include <gtest/gtest.h>

#include <boost/pointer_cast.hpp>
#include <limits>
#include <stdexcept>
#include <string>

namespace varnel_m3g {
namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

template <class Work>
std::string refusal(Work work) {
  try {
    work();
  } catch (const std::invalid_argument& e) {
    return e.what();
  }
  return "nothing thrown";
}

TEST(AnimationController, BeginsAlwaysActiveWithWeightOne) {
  const auto controller = AnimationController::create();
  EXPECT_EQ(controller->getActiveIntervalStart(), 0);
  EXPECT_EQ(controller->getActiveIntervalEnd(), 0);
  EXPECT_EQ(controller->getWeight(), 1.0F);
  EXPECT_EQ(controller->getSpeed(), 1.0F);
  EXPECT_EQ(controller->getRefWorldTime(), 0);
  EXPECT_EQ(controller->getPosition(0), 0.0F);
  EXPECT_TRUE(controller->isActive(least));
}

TEST(AnimationController, ResetLeavesAWeightOfZero) {
  const auto controller = AnimationController::create();
  controller->setUserID(4);
  controller->setActiveInterval(1, 2);
  controller->setSpeed(3, 4);
  controller->setPosition(5, 6);
  controller->reset();
  EXPECT_EQ(controller->getUserID(), 0);
  EXPECT_EQ(controller->getActiveIntervalStart(), 0);
  EXPECT_EQ(controller->getActiveIntervalEnd(), 0);
  EXPECT_EQ(controller->getWeight(), 0.0F);
  EXPECT_EQ(controller->getSpeed(), 1.0F);
  EXPECT_EQ(controller->getRefWorldTime(), 0);
  EXPECT_EQ(controller->getPosition(0), 0.0F);
}

TEST(AnimationController, RefusesAnIntervalThatEndsBeforeItStarts) {
  const auto controller = AnimationController::create();
  controller->setActiveInterval(10, 20);
  EXPECT_EQ(refusal([&] { controller->setActiveInterval(5, 4); }), "Invalid active interval");
  EXPECT_EQ(controller->getActiveIntervalStart(), 10);
  EXPECT_EQ(controller->getActiveIntervalEnd(), 20);
}

TEST(AnimationController, RefusesANegativeWeight) {
  const auto controller = AnimationController::create();
  EXPECT_EQ(refusal([&] { controller->setWeight(-0.5F); }), "Invalid blending weight");
  EXPECT_EQ(controller->getWeight(), 1.0F);
  EXPECT_EQ(refusal([&] { controller->setWeight(-0.0F); }), "nothing thrown");
}

//   9 | 10 ======= 19 | 20
TEST(AnimationController, IsActiveFromTheStartOnAndBeforeTheEnd) {
  const auto controller = AnimationController::create();
  controller->setActiveInterval(10, 20);
  const std::pair<int, bool> table[] = {{9, false},  {10, true},     {19, true},
                                        {20, false}, {least, false}, {most, false}};
  for (const auto& [time, active] : table) {
    EXPECT_EQ(controller->isActive(time), active) << time;
  }
  controller->setWeight(0);
  EXPECT_FALSE(controller->isActive(15));
}

TEST(AnimationController, AnEmptyIntervalIsAlwaysActive) {
  const auto controller = AnimationController::create();
  controller->setActiveInterval(5, 5);
  for (const int time : {least, 4, 5, 6, most}) {
    EXPECT_TRUE(controller->isActive(time)) << time;
  }
}

TEST(AnimationController, TellsTheTimeToActivation) {
  struct Case {
    int start;
    int end;
    float weight;
    int time;
    int wait;
  };
  const Case cases[] = {
      {10, 20, 0.0F, 5, most}, {10, 20, 1.0F, 5, 5},     {10, 20, 1.0F, 10, 0},
      {10, 20, 1.0F, 19, 0},   {10, 20, 1.0F, 20, most}, {10, 10, 1.0F, 4, 6},
      {10, 10, 1.0F, 10, 0},   {10, 10, 1.0F, 99, 0},    {most, most, 1.0F, -5, most},
  };
  for (const Case& c : cases) {
    const auto controller = AnimationController::create();
    controller->setActiveInterval(c.start, c.end);
    controller->setWeight(c.weight);
    EXPECT_EQ(controller->timeToActivation(c.time), c.wait)
        << c.start << ".." << c.end << " at " << c.time;
  }
}

TEST(AnimationController, ThePositionRunsWithTheSpeedFromTheReference) {
  const auto controller = AnimationController::create();
  controller->setSpeed(2, 0);
  controller->setPosition(100, 10);
  EXPECT_EQ(controller->getPosition(15), 110.0F);
  EXPECT_EQ(controller->getPosition(10), 100.0F);
  EXPECT_EQ(controller->getPosition(5), 90.0F);
}

TEST(AnimationController, AChangeOfSpeedFallsBackToTheReference) {
  const auto controller = AnimationController::create();
  controller->setSpeed(2, 50);
  EXPECT_EQ(controller->getPosition(50), 0.0F);
  EXPECT_EQ(controller->getPosition(60), 20.0F);
  EXPECT_EQ(controller->getRefWorldTime(), 50);
}

TEST(AnimationController, TheElapsedTimeWrapsLikeAnInteger) {
  const auto controller = AnimationController::create();
  controller->setPosition(0, least);
  EXPECT_EQ(controller->getPosition(most), -1.0F);
}

TEST(AnimationController, ThePositionIsRoundedOnceToAFloat) {
  const auto controller = AnimationController::create();
  controller->setSpeed(0.1F, 0);
  controller->setPosition(1.0F, 0);
  EXPECT_EQ(controller->getPosition(16777217),
            static_cast<float>(16777217.0 * static_cast<double>(0.1F) + 1.0));
}

TEST(AnimationController, ADuplicateHasAllFields) {
  const auto controller = AnimationController::create();
  controller->setUserID(9);
  controller->setActiveInterval(3, 8);
  controller->setWeight(0.25F);
  controller->setSpeed(4, 7);
  controller->setPosition(30, 6);
  const auto copy = boost::dynamic_pointer_cast<AnimationController>(controller->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_NE(copy, controller);
  EXPECT_EQ(copy->getUserID(), 9);
  EXPECT_EQ(copy->getActiveIntervalStart(), 3);
  EXPECT_EQ(copy->getActiveIntervalEnd(), 8);
  EXPECT_EQ(copy->getWeight(), 0.25F);
  EXPECT_EQ(copy->getSpeed(), 4.0F);
  EXPECT_EQ(copy->getRefWorldTime(), 6);
  EXPECT_EQ(copy->getPosition(6), 30.0F);
}

}  // namespace
}  // namespace varnel_m3g
