#include "engine/scene/group.h"

#include <utility>

#include "engine/object/log.h"

namespace varnel_m3g {

boost::shared_ptr<Group> Group::create() {
  boost::shared_ptr<Group> group(new Group);
  group->initialise();
  return group;
}

void Group::dump() {
  Node::dump();
  log("Group Object");
  log("============");
  logf("Number of Childern: %u", getChildCount());
  for (const boost::shared_ptr<Node>& child : childList()) {
    logf("\tChild ID: %u", static_cast<unsigned>(child->getUserID()));
  }
}

void Group::addChild(boost::shared_ptr<Node> child) {
  Node::addChild(std::move(child));
}

void Group::removeChild(boost::shared_ptr<Node> child) {
  Node::removeChild(std::move(child));
}

unsigned Group::getChildCount() {
  return Node::getChildCount();
}

bool Group::pick(int scope, float ox, float oy, float oz, float dx, float dy, float dz,
                 RayIntersection* result) {
  return Node::pick(scope, ox, oy, oz, dx, dy, dz, result);
}

void Group::getChild(boost::shared_ptr<Node>& out, unsigned index) {
  out = Node::getChild(index);
}

}  // namespace varnel_m3g
