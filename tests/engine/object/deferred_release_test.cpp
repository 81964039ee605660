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

TEST(DeferredRelease, EndsEverythingBeforeTheOutermostReleaseReturns) {
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
  root->references = {a, named("b")};
  a.reset();
  root.reset();
  EXPECT_THAT(deaths, testing::ElementsAre("root", "a", "below", "b"));
}

TEST(DeferredRelease, TakesAnEmptyPointer) {
  releaseDeferred(boost::shared_ptr<void>());
}

}  // namespace
}  // namespace varnel_m3g
