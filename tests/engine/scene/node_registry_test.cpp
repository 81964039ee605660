#include "engine/scene/node_registry.h"

#include <gtest/gtest.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <random>

namespace varnel_m3g {
namespace {

using boost::make_shared;
using boost::shared_ptr;

TEST(NodeRegistry, ObjectsThatComeAndGoUnreadLeaveNoRoomBehind) {
  NodeRegistry<int> registry;
  const shared_ptr<int> first = make_shared<int>(1);
  const shared_ptr<int> last = make_shared<int>(2);
  registry.add(first);
  for (int i = 0; i < 100000; ++i) {
    const shared_ptr<int> guest = make_shared<int>(i);
    registry.add(guest);
    registry.remove(guest);
  }
  registry.add(last);
  EXPECT_EQ(registry.entries(), (std::vector<shared_ptr<int>>{first, last}));
  EXPECT_LT(registry.entries().capacity(), 100U);
}

TEST(NodeRegistry, KeepsTheOrderOfAddingWhenReadNowAndThen) {
  std::mt19937 random(3);
  std::vector<shared_ptr<int>> objects;
  for (int i = 0; i < 50; ++i) {
    objects.push_back(make_shared<int>(i));
  }
  NodeRegistry<int> registry;
  std::vector<shared_ptr<int>> model;
  for (int i = 0; i < 20000; ++i) {
    const shared_ptr<int>& object = objects[random() % objects.size()];
    const auto found = std::find(model.begin(), model.end(), object);
    if (random() % 2 == 0) {
      registry.add(object);
      if (found == model.end()) {
        model.push_back(object);
      }
    } else {
      registry.remove(object);
      if (found != model.end()) {
        model.erase(found);
      }
    }
    if (random() % 100 == 0) {
      ASSERT_EQ(registry.entries(), model);
    }
  }
}

}  // namespace
}  // namespace varnel_m3g
