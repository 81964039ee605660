#include "binding/frame/frame.h"

#include <gtest/gtest.h>

#include "tests/support/test_object.h"

namespace varnel_m3g {
namespace {

using varnel_test::TestObject;

class OtherObject : public TestObject {};

TEST(Handle, OfZeroIsAnEmptyPointer) {
  EXPECT_FALSE(handleCast<Object3D>(0));
}

TEST(Handle, OwnsOneStrongCount) {
  const auto object = TestObject::create();
  const jlong handle = toHandle(object);
  EXPECT_EQ(object.use_count(), 2);
  EXPECT_EQ(handleCast<TestObject>(handle), object);
  EXPECT_EQ(&cellObject(handle), object.get());
  freeCell(handle);
  EXPECT_EQ(object.use_count(), 1);
}

TEST(Handle, OfAnotherClassIsAnEmptyPointerAndCountsNothing) {
  const auto object = TestObject::create();
  const jlong handle = toHandle(object);
  EXPECT_FALSE(handleCast<OtherObject>(handle));
  EXPECT_EQ(object.use_count(), 2);
  freeCell(handle);
}

TEST(Handle, OfOneObjectMayExistManyTimes) {
  auto object = TestObject::create();
  const jlong first = toHandle(object);
  const jlong second = toHandle(object);
  EXPECT_NE(first, second);
  const boost::weak_ptr<TestObject> watch = object;
  object.reset();
  freeCell(first);
  EXPECT_FALSE(watch.expired());
  freeCell(second);
  EXPECT_TRUE(watch.expired());
}

TEST(Handle, OfZeroIsFreedWithoutEffect) {
  freeCell(0);
}

TEST(HandleDeathTest, OfAnotherClassStopsTheProcessWhenItIsUsed) {
  const auto object = TestObject::create();
  const jlong handle = toHandle(object);
  EXPECT_DEATH(handleCast<OtherObject>(handle)->getUserID(), "px != 0");
  freeCell(handle);
}

TEST(HandleDeathTest, OfZeroStopsTheProcessWhenItIsUsed) {
  EXPECT_DEATH(handleCast<TestObject>(0)->getUserID(), "px != 0");
}

}  // namespace
}  // namespace varnel_m3g
