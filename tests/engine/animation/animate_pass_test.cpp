#include <gtest/gtest.h>

#include <algorithm>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/scene/group.h"
#include "engine/surface/fog.h"
#include "engine/surface/material.h"
#include "tests/engine/animation/animation_scene.h"
#include "tests/support/allocation_count.h"
#include "tests/support/small_stack.h"
#include "tests/support/test_object.h"

namespace varnel_m3g {
namespace {

using varnel_test::addConstantTrack;
using varnel_test::allocationCount;
using varnel_test::constantTrack;
using varnel_test::TestObject;

constexpr int never = std::numeric_limits<int>::max();

boost::shared_ptr<TestObject> named(const std::string& name, std::vector<std::string>& calls) {
  const auto object = TestObject::create();
  object->name = name;
  object->calls = &calls;
  return object;
}

TEST(AnimatePass, GoesDepthFirstInReferenceOrder) {
  std::vector<std::string> calls;
  const auto a = named("a", calls);
  const auto b = named("b", calls);
  const auto c = named("c", calls);
  const auto d = named("d", calls);
  a->references = {b, c};
  b->references = {d};
  a->animate(0);
  // An object without references has nothing to fill.
  EXPECT_EQ(calls, (std::vector<std::string>{"a counts", "a fills", "b counts", "b fills",
                                             "d counts", "c counts"}));
}

TEST(AnimatePass, AnObjectOnTwoPathsIsAnimatedTwice) {
  std::vector<std::string> calls;
  const auto top = named("top", calls);
  const auto shared = named("shared", calls);
  top->references = {shared, shared};
  top->animate(0);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "shared counts"), 2);
}

TEST(AnimatePass, AnObjectWithNothingIsValidForever) {
  EXPECT_EQ(TestObject::create()->animate(0), never);
}

TEST(AnimatePass, AnActiveTrackMakesTheResultZero) {
  const auto fog = Fog::create();
  addConstantTrack(*fog, AnimationTrack::DENSITY, {1});
  EXPECT_EQ(fog->animate(5), 0);
  fog->getAnimationTrack(0)->getController()->setWeight(0);
  EXPECT_EQ(fog->animate(5), never);
}

TEST(AnimatePass, InactiveControllersDoNotCount) {
  const auto fog = Fog::create();
  addConstantTrack(*fog, AnimationTrack::DENSITY, {1});
  fog->getAnimationTrack(0)->getController()->setActiveInterval(10, 20);
  EXPECT_EQ(fog->animate(5), never) << "although it begins in 5";
  EXPECT_EQ(fog->animate(10), 0);
  EXPECT_EQ(fog->animate(20), never);
}

TEST(AnimatePass, AnAlwaysActiveControllerBeforeItsStartGivesAPositiveTime) {
  const auto fog = Fog::create();
  addConstantTrack(*fog, AnimationTrack::DENSITY, {1});
  fog->getAnimationTrack(0)->getController()->setActiveInterval(30, 30);
  EXPECT_EQ(fog->animate(10), 20);
  EXPECT_EQ(fog->animate(30), 0);
}

TEST(AnimatePass, TheSmallestValidityOfTheGraphWins) {
  const auto top = TestObject::create();
  for (const int start : {50, 30, 40}) {
    const auto fog = Fog::create();
    addConstantTrack(*fog, AnimationTrack::DENSITY, {1});
    fog->getAnimationTrack(0)->getController()->setActiveInterval(start, start);
    top->references.push_back(fog);
  }
  EXPECT_EQ(top->animate(10), 20);
}

TEST(AnimatePass, ATrackWithoutAControllerIsNotActive) {
  const auto fog = Fog::create();
  const auto track = constantTrack(AnimationTrack::DENSITY, {3});
  track->setController(boost::shared_ptr<AnimationController>());
  fog->addAnimationTrack(track);
  EXPECT_EQ(fog->animate(0), never);
  EXPECT_EQ(fog->getDensity(), 1.0F);
}

TEST(AnimatePass, ValuesOfAnEarlierPassAreGone) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::TRANSLATION, {1, 2, 3});
  group->animate(0);
  group->animate(0);
  float translation[3];
  group->getTranslation(translation);
  EXPECT_EQ(translation[0], 1.0F) << "sums do not go on";
  group->getAnimationTrack(0)->getController()->setActiveInterval(10, 20);
  group->setTranslation(7, 8, 9);
  group->animate(0);
  group->getTranslation(translation);
  EXPECT_EQ(translation[0], 7.0F) << "a silent track applies nothing";
}

TEST(AnimatePass, TracksThatChangeTheirCountsKeepTheirValues) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::SCALE, {2});
  group->animate(0);
  varnel_test::removeTracks(*group);
  addConstantTrack(*group, AnimationTrack::SCALE, {3, 4, 5});
  group->animate(0);
  float scale[3];
  group->getScale(scale);
  EXPECT_EQ(scale[2], 5.0F);
  varnel_test::removeTracks(*group);
  addConstantTrack(*group, AnimationTrack::SCALE, {6});
  group->animate(0);
  group->getScale(scale);
  EXPECT_EQ(scale[2], 6.0F);
}

TEST(AnimatePass, AnObjectMayGainAndLoseReferences) {
  const auto top = TestObject::create();
  std::vector<boost::shared_ptr<Fog>> fogs;
  for (int count = 1; count <= 20; ++count) {
    fogs.push_back(Fog::create());
    addConstantTrack(*fogs.back(), AnimationTrack::DENSITY, {static_cast<float>(count)});
    top->references.push_back(fogs.back());
    top->animate(0);
    EXPECT_EQ(fogs.back()->getDensity(), static_cast<float>(count));
  }
  fogs[0]->setDensity(50);
  top->references.erase(top->references.begin());
  top->animate(0);
  EXPECT_EQ(fogs[0]->getDensity(), 50.0F) << "no longer a reference";
}

TEST(AnimatePass, AFailureStopsThePassWhereItIs) {
  const auto top = TestObject::create();
  const auto first = Fog::create();
  addConstantTrack(*first, AnimationTrack::DENSITY, {2});
  const auto bad = Group::create();
  addConstantTrack(*bad, AnimationTrack::ALPHA, {2});
  const auto last = Fog::create();
  addConstantTrack(*last, AnimationTrack::DENSITY, {3});
  top->references = {first, bad, last};
  EXPECT_THROW(top->animate(0), std::invalid_argument);
  EXPECT_EQ(first->getDensity(), 2.0F);
  EXPECT_EQ(last->getDensity(), 1.0F);
  varnel_test::removeTracks(*bad);
  top->animate(0);
  EXPECT_EQ(last->getDensity(), 3.0F) << "the next pass starts afresh";
}

TEST(AnimatePass, AFailingSequenceStopsItToo) {
  const auto sequence = KeyframeSequence::create(2, 1, KeyframeSequence::LINEAR);
  const float value[] = {1};
  sequence->setKeyframe(0, 10, value);
  sequence->setKeyframe(1, 5, value);
  const auto track = AnimationTrack::create(sequence, AnimationTrack::DENSITY);
  track->setController(AnimationController::create());
  const auto fog = Fog::create();
  fog->addAnimationTrack(track);
  EXPECT_THROW(fog->animate(0), std::runtime_error);
}

TEST(AnimatePass, TracksAndControllersAreAnimatedAsReferences) {
  // The outer track's own track is for a property that tracks do not have.
  const auto fog = Fog::create();
  addConstantTrack(*fog, AnimationTrack::DENSITY, {2});
  const auto inner = constantTrack(AnimationTrack::DENSITY, {5});
  inner->getController()->setActiveInterval(9, 9);
  fog->getAnimationTrack(0)->addAnimationTrack(inner);
  fog->getAnimationTrack(0)->getController()->setWeight(0);
  EXPECT_EQ(fog->animate(4), 5) << "the inner track's wait shows that it was sampled";
}

TEST(AnimatePass, ServesAChainOfAnyDepthOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    const auto top = TestObject::create();
    boost::shared_ptr<TestObject> end = top;
    for (int depth = 0; depth < 100000; ++depth) {
      const auto next = TestObject::create();
      end->references.push_back(next);
      end = next;
    }
    addConstantTrack(*end, AnimationTrack::DENSITY, {1});
    EXPECT_EQ(top->animate(0), 0);
  });
}

// Each controller has a track, whose controller has a track. Returns the last controller.
boost::shared_ptr<Object3D> addChainOfTracks(Object3D& object) {
  addConstantTrack(object, AnimationTrack::DENSITY, {2});
  boost::shared_ptr<Object3D> end = object.getAnimationTrack(0)->getController();
  for (int depth = 1; depth < 100000; ++depth) {
    addConstantTrack(*end, AnimationTrack::DENSITY, {3});
    end = end->getAnimationTrack(0)->getController();
  }
  return end;
}

TEST(AnimatePass, ServesAChainOfControllersOfAnyDepthOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    const auto fog = Fog::create();
    const auto end = addChainOfTracks(*fog);
    addConstantTrack(*end, AnimationTrack::DENSITY, {4});
    end->getAnimationTrack(0)->setUserID(8);
    EXPECT_EQ(fog->animate(0), 0);
    EXPECT_EQ(fog->getDensity(), 2.0F);
    EXPECT_EQ(fog->find(8), end->getAnimationTrack(0));
  });
}

TEST(AnimatePass, AChainOfControllersOfAnyDepthEndsOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    auto fog = Fog::create();
    const boost::weak_ptr<Object3D> end = addChainOfTracks(*fog);
    fog.reset();
    EXPECT_TRUE(end.expired());
  });
}

// 1,000 tracks of all interpolations on 250 groups.
boost::shared_ptr<Group> animatedScene() {
  const auto root = Group::create();
  for (int n = 0; n < 250; ++n) {
    const auto group = Group::create();
    root->addChild(group);
    const int properties[] = {AnimationTrack::TRANSLATION, AnimationTrack::TRANSLATION,
                              AnimationTrack::ORIENTATION, AnimationTrack::SCALE};
    const int interpolations[] = {
        n % 2 == 0 ? KeyframeSequence::SPLINE : KeyframeSequence::LINEAR, KeyframeSequence::STEP,
        n % 2 == 0 ? KeyframeSequence::SQUAD : KeyframeSequence::SLERP, KeyframeSequence::SPLINE};
    for (int t = 0; t < 4; ++t) {
      const int components = t == 2 ? 4 : 3;
      const auto sequence = KeyframeSequence::create(5, components, interpolations[t]);
      for (int k = 0; k < 5; ++k) {
        const float angle = 0.3F * static_cast<float>(k + n);
        const float value[] = {std::sin(angle), 0.5F, static_cast<float>(k), std::cos(angle)};
        sequence->setKeyframe(k, 100 * k, value);
      }
      sequence->setDuration(500);
      sequence->setRepeatMode(n % 3 == 0 ? KeyframeSequence::CONSTANT : KeyframeSequence::LOOP);
      const auto controller = AnimationController::create();
      if (t == 1) {
        // Some tracks come and go, so that properties have one or two of them.
        controller->setActiveInterval(2000, 9000);
      }
      const auto track = AnimationTrack::create(sequence, properties[t]);
      track->setController(controller);
      group->addAnimationTrack(track);
    }
  }
  return root;
}

TEST(AnimatePass, AllocatesNothingOnceItHasRun) {
  const auto root = animatedScene();
  root->animate(0);
  root->animate(3000);
  const unsigned long before = allocationCount();
  int evaluated = 0;
  for (int frame = 0; frame < 1000; ++frame) {
    evaluated += root->animate(frame * 17) == 0 ? 1 : 0;
  }
  EXPECT_EQ(allocationCount(), before);
  EXPECT_EQ(evaluated, 1000);
}

TEST(AnimatePass, AnEvaluationAllocatesNothing) {
  for (const int interpolation : {176, 177, 178, 179, 180}) {
    const auto sequence = KeyframeSequence::create(4, 4, interpolation);
    for (int k = 0; k < 4; ++k) {
      const float value[] = {static_cast<float>(k), 1, 2, 3};
      sequence->setKeyframe(k, 10 * k, value);
    }
    sequence->setDuration(40);
    sequence->setRepeatMode(KeyframeSequence::LOOP);
    int count = 0;
    sequence->getKeyframe(0.0F, &count);
    const unsigned long before = allocationCount();
    for (float time = -20; time < 200; time += 0.5F) {
      sequence->getKeyframe(time, &count);
    }
    EXPECT_EQ(allocationCount(), before) << interpolation;
  }
}

}  // namespace
}  // namespace varnel_m3g
