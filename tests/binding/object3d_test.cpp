#include "engine/object/object3d.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>
#include <stdexcept>

#include "binding/frame/frame.h"
#include "engine/object/user_object.h"
#include "tests/support/fake_java.h"
#include "tests/support/test_object.h"

extern "C" {
JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_duplicateN(JNIEnv*, jobject, jlong);
JNIEXPORT jint JNICALL Java_javax_microedition_m3g_Object3D_getReferencesN(JNIEnv*, jobject, jlong,
                                                                           jobjectArray);
JNIEXPORT jobject JNICALL Java_javax_microedition_m3g_Object3D_getUserObjectN(JNIEnv*, jobject,
                                                                              jlong);
JNIEXPORT void JNICALL Java_javax_microedition_m3g_Object3D_setUserObjectN(JNIEnv*, jobject, jlong,
                                                                           jobject);
}

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using varnel_test::FakeJava;
using varnel_test::TestObject;

// An object with a cell, and no machine behind its natives unless a test brings one.
class Object3DNatives : public testing::Test {
 protected:
  ~Object3DNatives() override { freeCell(handle); }

  boost::shared_ptr<TestObject> object = TestObject::create();
  jlong handle = toHandle(object);
};

TEST_F(Object3DNatives, CountReferencesForANullArrayWithoutAskingTheMachine) {
  object->references = {TestObject::create(), TestObject::create()};
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getReferencesN(nullptr, nullptr, handle, nullptr),
            2);
  object->references.clear();
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getReferencesN(nullptr, nullptr, handle, nullptr),
            0);
}

TEST_F(Object3DNatives, AnswerTheGlobalReferenceOfTheUserObjectItself) {
  FakeJava java;
  Java_javax_microedition_m3g_Object3D_setUserObjectN(java.env(), nullptr, handle,
                                                      FakeJava::object(4));
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getUserObjectN(java.env(), nullptr, handle),
            FakeJava::object(1004));
  EXPECT_THAT(java.calls, ElementsAre("NewGlobalRef(4)", "GetJavaVM"));
  object->setUserObject({});
}

TEST_F(Object3DNatives, ReplaceTheUserObjectByAHolderOfNull) {
  FakeJava java;
  Java_javax_microedition_m3g_Object3D_setUserObjectN(java.env(), nullptr, handle,
                                                      FakeJava::object(4));
  java.calls.clear();
  Java_javax_microedition_m3g_Object3D_setUserObjectN(java.env(), nullptr, handle, nullptr);
  EXPECT_THAT(java.calls,
              ElementsAre("GetEnv(65537)", "DeleteGlobalRef(1004)", "DetachCurrentThread"));
  EXPECT_TRUE(object->getUserObject());
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getUserObjectN(java.env(), nullptr, handle),
            nullptr);
}

TEST_F(Object3DNatives, AnswerNullForNoUserObjectAndForTheParametersOfAFile) {
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getUserObjectN(nullptr, nullptr, handle), nullptr);
  const auto parameters = boost::make_shared<MapUserObject>();
  parameters->insert(1, 1, new unsigned char[1]{'a'});
  object->setUserObject(parameters);
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_getUserObjectN(nullptr, nullptr, handle), nullptr);
}

// Its copies can be watched, and have no peers.
class WatchedObject : public TestObject {
 public:
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D>) override {
    if (fails) {
      throw std::runtime_error("no copy");
    }
    auto made = TestObject::create();
    copy = made;
    return made;
  }

  bool fails = false;
  boost::weak_ptr<TestObject> copy;
};

TEST(Object3DDuplicateNative, LeavesOneStrongCountOnTheCopyForGood) {
  FakeJava java;
  const auto source = boost::make_shared<WatchedObject>();
  const jlong handle = toHandle(source);
  EXPECT_EQ(Java_javax_microedition_m3g_Object3D_duplicateN(java.env(), nullptr, handle), nullptr);
  EXPECT_EQ(source->copy.use_count(), 1);
  freeCell(handle);
}

TEST(Object3DDuplicateNative, LeavesNothingOfACopyThatFails) {
  FakeJava java;
  const auto source = boost::make_shared<WatchedObject>();
  source->fails = true;
  const jlong handle = toHandle(source);
  EXPECT_THROW(Java_javax_microedition_m3g_Object3D_duplicateN(java.env(), nullptr, handle),
               std::runtime_error);
  EXPECT_TRUE(java.calls.empty());
  EXPECT_EQ(source.use_count(), 2);
  freeCell(handle);
}

}  // namespace
}  // namespace varnel_m3g
