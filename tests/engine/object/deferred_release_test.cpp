#include "engine/object/deferred_release.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/small_stack.h"
#include "tests/support/test_object.h"

namespace varnel_m3g {
namespace {

using varnel_test::TestObject;

TEST(DeferredRelease, EndsAChainOfAHundredThousandOnASmallStack) {
  varnel_test::runOnSmallStack([] {
    std::vector<std::string> deaths;
    auto first = TestObject::create();
    first->deaths = &deaths;
    for (int i = 1; i < 100000; ++i) {
      const auto next = TestObject::create();
      next->deaths = &deaths;
      next->references = {first};
      first = next;
    }
    first.reset();
    EXPECT_EQ(deaths.size(), 100000U);
  });
}

TEST(DeferredRelease, EndsEverythingInOrderBeforeTheOutermostReleaseReturns) {
  std::vector<std::string> deaths;
  const auto named = [&deaths](const std::string& name) {
    const auto object = TestObject::create();
    object->name = name;
    object->deaths = &deaths;
    return object;
  };
  auto root = named("root");
  auto a = named("a");
  a->references = {named("below")};
  a->references.push_back(named("beside"));
  auto b = named("b");
  b->references = {named("last")};
  root->references = {a, b};
  boost::weak_ptr<TestObject> watch = b;
  a.reset();
  auto top = named("top");
  top->references = {root};
  root.reset();
  b.reset();
  releaseDeferred(std::move(top));
  EXPECT_THAT(deaths, testing::ElementsAre("top", "root", "a", "below", "beside", "b", "last"));
  EXPECT_TRUE(watch.expired());
}

TEST(DeferredRelease, TakesAnEmptyPointer) {
  releaseDeferred(boost::shared_ptr<void>());
}

}  // namespace
}  // namespace varnel_m3g
