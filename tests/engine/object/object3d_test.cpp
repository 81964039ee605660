#include "engine/object/object3d.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <cstring>
#include <stdexcept>

#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/object/user_object.h"
#include "engine/surface/fog.h"
#include "tests/support/fake_java.h"
#include "tests/support/small_stack.h"
#include "tests/support/test_object.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using varnel_test::FakeJava;
using varnel_test::TestObject;

using Objects = std::vector<boost::shared_ptr<Object3D>>;

boost::shared_ptr<AnimationTrack> newTrack(int userID = 0) {
  const boost::shared_ptr<KeyframeSequence> sequence =
      KeyframeSequence::create(1, 1, KeyframeSequence::LINEAR);
  const boost::shared_ptr<AnimationTrack> track =
      AnimationTrack::create(sequence, AnimationTrack::ALPHA);
  track->setUserID(userID);
  return track;
}

template <class Exception, class Call>
std::string messageOf(Call call) {
  try {
    call();
  } catch (const Exception& e) {
    return e.what();
  }
  return "no exception";
}

TEST(Object3D, StartsWithItsDefaults) {
  const auto object = TestObject::create();
  EXPECT_EQ(object->getUserID(), 0);
  EXPECT_FALSE(object->getUserObject());
  EXPECT_EQ(object->getAnimationTrackCount(), 0U);
}

TEST(Object3D, RefusesAnEmptyTrack) {
  const auto object = TestObject::create();
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { object->addAnimationTrack({}); }),
            "attempt to add null AnimationTrack");
}

TEST(Object3D, RefusesATrackThatItHas) {
  const auto object = TestObject::create();
  const auto track = newTrack();
  object->addAnimationTrack(track);
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { object->addAnimationTrack(track); }),
            "attempt to add an AnimationTrack multiple times");
  EXPECT_EQ(object->getAnimationTrackCount(), 1U);
}

TEST(Object3D, IgnoresTheRemovalOfAForeignTrack) {
  const auto object = TestObject::create();
  const auto track = newTrack();
  object->removeAnimationTrack(track);
  object->addAnimationTrack(track);
  object->removeAnimationTrack(newTrack());
  object->removeAnimationTrack({});
  ASSERT_EQ(object->getAnimationTrackCount(), 1U);
  EXPECT_EQ(object->getAnimationTrack(0), track);
}

TEST(Object3D, RemovesOneTrackAndKeepsTheOrder) {
  const auto object = TestObject::create();
  const auto a = newTrack();
  const auto b = newTrack();
  const auto c = newTrack();
  for (const auto& track : {a, b, c}) {
    object->addAnimationTrack(track);
  }
  object->removeAnimationTrack(b);
  ASSERT_EQ(object->getAnimationTrackCount(), 2U);
  EXPECT_EQ(object->getAnimationTrack(0), a);
  EXPECT_EQ(object->getAnimationTrack(1), c);
}

TEST(Object3D, AnswersATrackIndexWithAnEmptyPointerOnlyWithoutTracks) {
  const auto object = TestObject::create();
  EXPECT_FALSE(object->getAnimationTrack(0));
  EXPECT_FALSE(object->getAnimationTrack(12345));
  object->addAnimationTrack(newTrack());
  EXPECT_EQ(messageOf<std::out_of_range>([&] { object->getAnimationTrack(1); }),
            "Object3D::getAnimationTrack index out of range.");
  EXPECT_EQ(messageOf<std::out_of_range>([&] { object->getAnimationTrack(0xFFFFFFFFU); }),
            "Object3D::getAnimationTrack index out of range.");
}

TEST(Object3D, CountsTheTracksOfAFogAsReferences) {
  const boost::shared_ptr<Fog> fog = Fog::create();
  const auto a = newTrack();
  const auto b = newTrack();
  fog->addAnimationTrack(a);
  fog->addAnimationTrack(b);
  EXPECT_EQ(fog->getReferences(nullptr, 0), 2U);
  Objects references(2);
  EXPECT_EQ(messageOf<std::invalid_argument>([&] { fog->getReferences(references.data(), 1); }),
            "Reference count from getReferences exceeds max");
  EXPECT_EQ(fog->getReferences(references.data(), 2), 2U);
  EXPECT_EQ(references[0], a);
  EXPECT_EQ(references[1], b);
}

TEST(Object3D, ReportsNoReferencesWithoutTracks) {
  const boost::shared_ptr<Fog> fog = Fog::create();
  EXPECT_EQ(fog->getReferences(nullptr, 0), 0U);
  Objects references(1);
  EXPECT_EQ(fog->getReferences(references.data(), 0), 0U);
}

TEST(ProcessArrayReferences, LeavesTheCountOfANullSource) {
  unsigned count = 7;
  Object3D::processArrayReferences<TestObject>(nullptr, 3, nullptr, 0, count);
  EXPECT_EQ(count, 7U);
}

TEST(ProcessArrayReferences, SkipsEmptyEntries) {
  const auto a = TestObject::create();
  const auto b = TestObject::create();
  const boost::shared_ptr<TestObject> source[4] = {{}, a, {}, b};
  unsigned count = 1;
  Objects references(3);
  Object3D::processArrayReferences(source, 4, references.data(), 3, count);
  EXPECT_EQ(count, 3U);
  EXPECT_FALSE(references[0]);
  EXPECT_EQ(references[1], a);
  EXPECT_EQ(references[2], b);
}

TEST(ProcessArrayReferences, OnlyCountsWithoutADestination) {
  const boost::shared_ptr<TestObject> source[2] = {TestObject::create(), TestObject::create()};
  unsigned count = 5;
  Object3D::processArrayReferences(source, 2, nullptr, 0, count);
  EXPECT_EQ(count, 7U);
}

TEST(ProcessArrayReferences, EmptiesWhatItHasFilledWhenTheDestinationIsTooShort) {
  const auto before = TestObject::create();
  const boost::shared_ptr<TestObject> source[3] = {TestObject::create(), TestObject::create(),
                                                   TestObject::create()};
  Objects references = {before, {}, {}};
  unsigned count = 1;
  EXPECT_EQ(messageOf<std::range_error>(
                [&] { Object3D::processArrayReferences(source, 3, references.data(), 3, count); }),
            "Object3D::processArrayReferences: number of references exceeds max");
  EXPECT_EQ(references[0], before);
  EXPECT_FALSE(references[1]);
  EXPECT_FALSE(references[2]);
}

TEST(Object3DFind, PrefersTheObjectItself) {
  const auto object = TestObject::create(5);
  object->references = {TestObject::create(5)};
  EXPECT_EQ(object->find(5), object);
}

TEST(Object3DFind, AnswersEmptyWhenNothingMatches) {
  const auto object = TestObject::create(1);
  object->references = {TestObject::create(2)};
  EXPECT_FALSE(object->find(3));
}

TEST(Object3DFind, GoesDepthFirstInTheOrderOfTheReferences) {
  const auto object = TestObject::create();
  const auto a = TestObject::create(1);
  const auto b = TestObject::create(2);
  const auto below = TestObject::create(2);
  a->references = {below};
  object->references = {a, b};
  EXPECT_EQ(object->find(2), below);
}

TEST(Object3DFind, SeesTracksBeforeOwnReferences) {
  const auto object = TestObject::create();
  object->references = {TestObject::create(9)};
  const auto track = newTrack(9);
  object->addAnimationTrack(track);
  EXPECT_EQ(object->find(9), track);
}

TEST(Object3DFind, AsksEachObjectForItsCountThenForItsReferences) {
  std::vector<std::string> calls;
  const auto named = [&calls](const std::string& name, int userID) {
    const auto object = TestObject::create(userID);
    object->name = name;
    object->calls = &calls;
    return object;
  };
  const auto root = named("root", 0);
  const auto a = named("a", 1);
  const auto b = named("b", 2);
  const auto c = named("c", 3);
  a->references = {b};
  root->references = {a, c};
  EXPECT_EQ(root->find(3), c);
  EXPECT_THAT(calls, ElementsAre("root counts", "root fills", "a counts", "a fills", "b counts"));
}

TEST(Object3DFind, SearchesAChainOfAHundredThousandOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    const auto root = TestObject::create();
    auto last = root;
    for (int i = 1; i <= 100000; ++i) {
      const auto next = TestObject::create(i);
      last->references = {next};
      last = next;
    }
    EXPECT_EQ(root->find(100000), last);
    EXPECT_FALSE(root->find(-1));
  });
}

TEST(Object3D, EndsAChainOfAHundredThousandTracksOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    boost::shared_ptr<AnimationTrack> first = newTrack();
    const boost::shared_ptr<KeyframeSequence> sequence = first->getKeyframeSequence();
    for (int i = 0; i < 100000; ++i) {
      const auto owner = AnimationTrack::create(sequence, AnimationTrack::ALPHA);
      owner->addAnimationTrack(first);
      first = owner;
    }
    first.reset();
    EXPECT_EQ(sequence.use_count(), 1);
  });
}

TEST(Object3DDuplicate, SharesTracksAndUserObjectAndCopiesTheUserID) {
  const boost::shared_ptr<Fog> fog = Fog::create();
  const auto track = newTrack();
  const auto userObject = boost::make_shared<MapUserObject>();
  fog->setUserID(17);
  fog->setUserObject(userObject);
  fog->addAnimationTrack(track);
  const auto copy = boost::dynamic_pointer_cast<Fog>(fog->duplicate());
  ASSERT_TRUE(copy);
  EXPECT_NE(copy, fog);
  EXPECT_EQ(copy->getUserID(), 17);
  EXPECT_EQ(copy->getUserObject(), userObject);
  ASSERT_EQ(copy->getAnimationTrackCount(), 1U);
  EXPECT_EQ(copy->getAnimationTrack(0), track);
  copy->setUserID(18);
  EXPECT_EQ(fog->getUserID(), 17);
}

TEST(Object3DReset, EmptiesUserDataAndKeepsTracks) {
  const auto object = TestObject::create(3);
  object->setUserObject(boost::make_shared<MapUserObject>());
  object->addAnimationTrack(newTrack());
  object->reset();
  EXPECT_EQ(object->getUserID(), 0);
  EXPECT_FALSE(object->getUserObject());
  EXPECT_EQ(object->getAnimationTrackCount(), 1U);
}

TEST(Object3DReset, ForgetsTheReferencesOfTheLastPassAndDoesNotFreeThem) {
  const auto object = TestObject::create();
  const auto reference = TestObject::create();
  object->references = {reference};
  object->animate(0);
  object->references.clear();
  object->reset();
  EXPECT_EQ(reference.use_count(), 2);
  object->references = {reference};
  object->animate(0);
  EXPECT_EQ(reference.use_count(), 4);
}

TEST(Object3D, LeavesTheReferencesOfItsLastPassAlive) {
  auto object = TestObject::create();
  const auto reference = TestObject::create();
  object->references = {reference};
  object->animate(0);
  object.reset();
  EXPECT_EQ(reference.use_count(), 2);
}

TEST(Object3DDump, WritesEveryField) {
  const auto object = TestObject::create(-1);
  object->addAnimationTrack(newTrack(7));
  object->addAnimationTrack(newTrack(8));
  const auto parameters = boost::make_shared<MapUserObject>();
  auto* bytes = new unsigned char[4]{'a', ' ', '~', 0x80};
  parameters->insert(2, 4, bytes);
  parameters->insert(1, 0, new unsigned char[0]);
  object->setUserObject(parameters);
  testing::internal::CaptureStdout();
  object->dump();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "OBJECT_3D\n"
            "=========\n"
            "UserID:                 4294967295\n"
            "NumberAnimationTracks: 2\n"
            "\tAnimationTrackID[0]: 7\n"
            "\tAnimationTrackID[1]: 8\n"
            "NumUserParams:          2\n"
            "ParameterID:    1,      Value: \n"
            "ParameterID:    2,      Value: a ~\\x80\n");
}

TEST(Object3DDump, WritesNoParametersWithoutAny) {
  testing::internal::CaptureStdout();
  TestObject::create(5)->dump();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "OBJECT_3D\n"
            "=========\n"
            "UserID:                 5\n"
            "NumberAnimationTracks: 0\n"
            "NumUserParams:          0\n");
}

TEST(HashEntry, OwnsACopyOfItsValues) {
  float values[3] = {1, 2, 3};
  Object3D::HashEntry entry(3, values);
  values[0] = 9;
  ASSERT_EQ(entry.getCount(), 3);
  EXPECT_EQ(entry.getValues()[0], 1);
  Object3D::HashEntry other;
  other = entry;
  entry.set(1, values);
  ASSERT_EQ(other.getCount(), 3);
  EXPECT_EQ(other.getValues()[2], 3);
  EXPECT_EQ(entry.getCount(), 1);
  EXPECT_EQ(entry.getValues()[0], 9);
}

TEST(HashEntry, SurvivesAssignmentToItself) {
  const float values[2] = {4, 5};
  Object3D::HashEntry entry(2, values);
  Object3D::HashEntry& same = entry;
  entry = same;
  ASSERT_EQ(entry.getCount(), 2);
  EXPECT_EQ(entry.getValues()[1], 5);
}

TEST(HashEntry, HoldsNothingForACountOfZero) {
  Object3D::HashEntry entry;
  EXPECT_EQ(entry.getCount(), 0);
  EXPECT_EQ(entry.getValues(), nullptr);
  const float value = 1;
  entry.set(1, &value);
  entry.set(0, nullptr);
  EXPECT_EQ(entry.getCount(), 0);
}

TEST(MapUserObject, KeepsTheFirstValueOfAnID) {
  MapUserObject parameters;
  parameters.insert(1, 1, new unsigned char[1]{'a'});
  parameters.insert(1, 1, new unsigned char[1]{'b'});
  EXPECT_TRUE(parameters.contains(1));
  EXPECT_FALSE(parameters.contains(2));
  ASSERT_EQ(parameters.getValues().size(), 1U);
  EXPECT_EQ(parameters.getValues().at(1).second[0], 'a');
}

TEST(BackReference, IsAGlobalReferenceThatReplacesTheFormerOne) {
  FakeJava java;
  const auto object = TestObject::create();
  object->setBackReference(java.env(), FakeJava::object(1));
  object->setBackReference(java.env(), FakeJava::object(2));
  EXPECT_THAT(java.calls, ElementsAre("GetJavaVM", "NewGlobalRef(1)", "DeleteGlobalRef(1001)",
                                      "NewGlobalRef(2)"));
  EXPECT_EQ(object->getJavaPeer(java.env()), FakeJava::object(1002));
}

TEST(BackReference, EndsWithTheObjectOnAThreadOfTheMachine) {
  FakeJava java;
  auto object = TestObject::create();
  object->setBackReference(java.env(), FakeJava::object(1));
  java.calls.clear();
  object.reset();
  EXPECT_THAT(java.calls, ElementsAre("GetEnv(65537)", "DeleteGlobalRef(1001)"));
}

TEST(BackReference, EndsWithTheObjectOnAForeignThread) {
  FakeJava java;
  auto object = TestObject::create();
  object->setBackReference(java.env(), FakeJava::object(1));
  java.calls.clear();
  java.attached = false;
  object.reset();
  EXPECT_THAT(java.calls, ElementsAre("GetEnv(65537)", "GetEnv(65537)", "GetEnv(65537)",
                                      "AttachCurrentThread(0)", "DeleteGlobalRef(1001)",
                                      "DetachCurrentThread"));
}

TEST(BackReference, IsForgottenWhenTheMachineIsGone) {
  FakeJava java;
  auto object = TestObject::create();
  object->setBackReference(java.env(), FakeJava::object(1));
  java.calls.clear();
  java.attached = false;
  java.attachSucceeds = false;
  object.reset();
  EXPECT_THAT(java.calls, ElementsAre("GetEnv(65537)", "GetEnv(65537)", "GetEnv(65537)",
                                      "AttachCurrentThread(0)"));
}

TEST(BackReference, AsksNoMachineWithoutAPeer) {
  auto object = TestObject::create();
  object.reset();  // would go through a null machine
}

// A user object that notes its end.
class NotedUserObject : public UserObject {
 public:
  explicit NotedUserObject(std::vector<std::string>& calls) : calls(calls) {}
  ~NotedUserObject() override { calls.push_back("user object"); }

 private:
  std::vector<std::string>& calls;
};

TEST(Object3D, EndsWithItsPeerThenItsUserObjectThenItsTracks) {
  FakeJava java;
  auto object = TestObject::create();
  auto track = newTrack();
  track->setUserObject(boost::make_shared<NotedUserObject>(java.calls));
  track->setBackReference(java.env(), FakeJava::object(2));
  object->addAnimationTrack(track);
  track.reset();
  object->setUserObject(boost::make_shared<NotedUserObject>(java.calls));
  object->setBackReference(java.env(), FakeJava::object(1));
  java.calls.clear();
  object.reset();
  EXPECT_THAT(java.calls, ElementsAre("GetEnv(65537)", "DeleteGlobalRef(1001)", "user object",
                                      "GetEnv(65537)", "DeleteGlobalRef(1002)", "user object"));
}

TEST(Object3D, HandsOutNewOwnersOfItself) {
  const auto object = TestObject::create();
  EXPECT_EQ(object->shared_from_this(), object);
  EXPECT_EQ(object.use_count(), 1);
}

}  // namespace
}  // namespace varnel_m3g
