// Drives random operations on a few dozen nodes and, beside them, on a model that follows the rules
// of the tree word for word, by recursion; both must agree after every step. All matrices are whole
// numbers, so that world transforms are exact.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <random>
#include <stdexcept>
#include <string>

#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/world.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;

enum Kind { GROUP, WORLD, CAMERA, LIGHT };

// Row-major.
struct Whole {
  std::array<long long, 16> m{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

  bool operator==(const Whole& other) const { return m == other.m; }

  Whole times(const Whole& other) const {
    Whole product;
    for (std::size_t r = 0; r < 4; ++r) {
      for (std::size_t c = 0; c < 4; ++c) {
        product.m[4 * r + c] = 0;
        for (std::size_t k = 0; k < 4; ++k) {
          product.m[4 * r + c] += m[4 * r + k] * other.m[4 * k + c];
        }
      }
    }
    return product;
  }

  // Of a signed permutation with a translation.
  Whole inverse() const {
    Whole result;
    for (std::size_t r = 0; r < 3; ++r) {
      result.m[4 * r + 3] = 0;
      for (std::size_t c = 0; c < 3; ++c) {
        result.m[4 * r + c] = m[4 * c + r];
        result.m[4 * r + 3] -= m[4 * c + r] * m[4 * c + 3];
      }
    }
    return result;
  }
};

// The matrix, whose elements may be off a whole number by `tolerance`.
Whole wholeOf(const Transform& transform, double tolerance = 0.0) {
  float rows[16];
  transform.get(rows);
  Whole whole;
  for (std::size_t i = 0; i < 16; ++i) {
    whole.m[i] = std::llround(rows[i]);
    EXPECT_NEAR(static_cast<double>(whole.m[i]), static_cast<double>(rows[i]), tolerance);
  }
  return whole;
}

struct ModelNode {
  Kind kind;
  int parent = -1;
  int root;
  int depth = 0;
  bool pending = true;
  bool childPending = false;
  std::vector<int> children;
  std::array<long long, 3> translation{};
  Whole general;
  Whole world;
  std::vector<int> cameras;
  std::vector<int> lights;

  Whole composite() const {
    Whole t;
    for (std::size_t r = 0; r < 3; ++r) {
      t.m[4 * r + 3] = translation[r];
    }
    return t.times(general);
  }
};

class Model {
 public:
  std::map<int, ModelNode> nodes;

  void create(int id, Kind kind) {
    ModelNode node;
    node.kind = kind;
    node.root = id;
    nodes[id] = node;
  }

  void destroy(int id) {
    for (int child : nodes[id].children) {
      nodes[child].parent = -1;
    }
    nodes.erase(id);
  }

  std::string addChild(int id, int child) {
    if (id == child) {
      return "Attempt to add this Node as own child";
    }
    if (nodes[child].kind == WORLD) {
      return "Child is a instance of World and must remain the root of the scene.";
    }
    if (nodes[child].parent == id) {
      return "";
    }
    if (nodes[child].parent != -1) {
      return "Attempt to add a child that already has a parent";
    }
    int top = id;
    while (nodes[top].parent != -1) {
      top = nodes[top].parent;
    }
    if (top == child) {
      return "child is an ancestor of this Patch";
    }
    nodes[id].children.push_back(child);
    updateSceneGraphInfo(child, id);
    return "";
  }

  void removeChild(int id, int child) {
    std::vector<int>& children = nodes[id].children;
    const auto found = std::find(children.begin(), children.end(), child);
    if (found != children.end()) {
      children.erase(found);
      nodes[child].parent = -1;
      updateSceneGraphInfo(child, -1);
    }
  }

  void change(int id) { setPending(id, true); }

  bool update(int id, bool force, Whole parentWorld) {
    ModelNode& node = nodes[id];
    const bool changed = force || node.pending;
    if (changed) {
      node.world = parentWorld.times(node.composite());
      setPending(id, false);
    }
    if (!changed && !node.childPending) {
      setChildPending(id, false);
      return false;
    }
    for (int child : node.children) {
      update(child, changed, node.world);
    }
    setChildPending(id, false);
    return changed;
  }

  bool transformTo(int id, int target, Whole& out) {
    const int root = nodes[id].root;
    if (root != nodes[target].root) {
      return false;
    }
    if (nodes.count(root) != 0) {
      update(root, false, nodes[root].world);
    }
    if (id == target) {
      out = Whole();
    } else if (target == root) {
      out = nodes[id].world;
    } else if (id == root) {
      out = nodes[target].world.inverse();
    } else {
      out = nodes[target].world.inverse().times(nodes[id].world);
    }
    return true;
  }

 private:
  void updateSceneGraphInfo(int id, int parent) {
    nodes[id].parent = parent;
    if (parent == -1) {
      setRoot(id, id);
      nodes[id].depth = 0;
    } else {
      setRoot(id, nodes[parent].root);
      nodes[id].depth = nodes[parent].depth + 1;
    }
    setPending(id, true);
    for (int child : nodes[id].children) {
      updateSceneGraphInfo(child, id);
    }
  }

  void setRoot(int id, int root) {
    const Kind kind = nodes[id].kind;
    if (kind == CAMERA || kind == LIGHT) {
      const auto list = kind == CAMERA ? &ModelNode::cameras : &ModelNode::lights;
      const auto old = nodes.find(nodes[id].root);
      if (old != nodes.end() && old->second.kind == WORLD) {
        std::vector<int>& entries = old->second.*list;
        entries.erase(std::remove(entries.begin(), entries.end(), id), entries.end());
      }
      // A dead root is no world.
      const auto next = nodes.find(root);
      if (next != nodes.end() && next->second.kind == WORLD) {
        (next->second.*list).push_back(id);
      }
    }
    nodes[id].root = root;
    for (int child : nodes[id].children) {
      setRoot(child, root);
    }
  }

  void setPending(int id, bool value) {
    nodes[id].pending = value;
    if (value && nodes[id].parent != -1) {
      setChildPending(nodes[id].parent, true);
    }
  }

  void setChildPending(int id, bool value) {
    if (nodes[id].childPending == value) {
      return;
    }
    nodes[id].childPending = value;
    if (nodes[id].parent != -1) {
      setChildPending(nodes[id].parent, value);
    }
  }
};

class NodeTreeModel : public testing::TestWithParam<unsigned> {
 protected:
  static constexpr int NODES = 40;
  static constexpr int STEPS = 4000;

  int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

  void SetUp() override {
    random.seed(GetParam());
    for (int slot = 0; slot < NODES; ++slot) {
      ids.push_back(-1);
      real.emplace_back();
      renew(slot);
    }
  }

  // A new node in the place of one that nothing else holds.
  void renew(int slot) {
    const std::size_t s = static_cast<std::size_t>(slot);
    real[s].reset();
    if (ids[s] != -1) {
      byId.erase(ids[s]);
      model.destroy(ids[s]);
    }
    const int draw = below(10);
    const Kind kind = draw < 5 ? GROUP : draw < 6 ? WORLD : draw < 8 ? CAMERA : LIGHT;
    switch (kind) {
      case GROUP:
        real[s] = Group::create();
        break;
      case WORLD:
        real[s] = World::create();
        break;
      case CAMERA:
        real[s] = Camera::create();
        break;
      case LIGHT:
        real[s] = Light::create();
        break;
    }
    ids[s] = nextId++;
    byId[ids[s]] = real[s].get();
    model.create(ids[s], kind);
  }

  Node* nodeOf(int id) const {
    const auto found = byId.find(id);
    return found == byId.end() ? nullptr : found->second;
  }

  void step() {
    const int a = below(NODES);
    const int b = below(NODES);
    Node& nodeA = *real[static_cast<std::size_t>(a)];
    const shared_ptr<Node> nodeB = real[static_cast<std::size_t>(b)];
    const int idA = ids[static_cast<std::size_t>(a)];
    const int idB = ids[static_cast<std::size_t>(b)];
    switch (below(12)) {
      case 0:
      case 1:
      case 2:
      case 3: {
        std::string text;
        try {
          nodeA.addChild(nodeB);
        } catch (const std::invalid_argument& e) {
          text = e.what();
        }
        EXPECT_EQ(text, model.addChild(idA, idB));
        break;
      }
      case 4: {
        nodeA.removeChild(nodeB);
        model.removeChild(idA, idB);
        break;
      }
      case 5: {
        const int parent = model.nodes[idB].parent;
        if (parent != -1) {
          nodeOf(parent)->removeChild(nodeB);
          model.removeChild(parent, idB);
        }
        break;
      }
      case 6:
      case 7: {
        const std::array<long long, 3> t{below(5) - 2, below(5) - 2, below(5) - 2};
        nodeA.setTranslation(static_cast<float>(t[0]), static_cast<float>(t[1]),
                             static_cast<float>(t[2]));
        model.nodes[idA].translation = t;
        model.change(idA);
        break;
      }
      case 8: {
        std::array<std::size_t, 3> columns{0, 1, 2};
        std::shuffle(columns.begin(), columns.end(), random);
        Whole general;
        for (std::size_t r = 0; r < 3; ++r) {
          for (std::size_t c = 0; c < 4; ++c) {
            general.m[4 * r + c] = 0;
          }
          general.m[4 * r + columns[r]] = below(2) == 0 ? 1 : -1;
        }
        float rows[16];
        std::copy(general.m.begin(), general.m.end(), rows);
        Transform transform;
        transform.set(rows);
        nodeA.setTransform(transform);
        model.nodes[idA].general = general;
        model.change(idA);
        break;
      }
      case 9: {
        Transform out;
        Whole expected;
        EXPECT_EQ(nodeA.getTransformTo(nodeB, out), model.transformTo(idA, idB, expected));
        // The inverse divides.
        EXPECT_EQ(wholeOf(out, 0.01), expected);
        break;
      }
      case 10: {
        const bool force = below(2) == 0;
        // What the parent last had, as the renderer hands it down.
        const shared_ptr<Node> parent = nodeA.getParent();
        const Transform parentWorld = parent ? parent->worldTransform() : Transform();
        const Whole wholeParent = parent ? model.nodes[model.nodes[idA].parent].world : Whole();
        EXPECT_EQ(nodeA.updateWorldTransforms(force, parentWorld),
                  model.update(idA, force, wholeParent));
        break;
      }
      default:
        if (model.nodes[idA].parent == -1 && below(4) == 0) {
          renew(a);
        }
    }
  }

  void compare() {
    for (const auto& [id, expected] : model.nodes) {
      Node& node = *nodeOf(id);
      SCOPED_TRACE(id);
      EXPECT_EQ(node.getParent().get(), expected.parent == -1 ? nullptr : nodeOf(expected.parent));
      EXPECT_EQ(node.getRoot().lock().get(), nodeOf(expected.root));
      EXPECT_EQ(node.getDepth(), expected.depth);
      EXPECT_EQ(node.isUpdatePending(), expected.pending);
      EXPECT_EQ(node.isChildUpdatePending(), expected.childPending);
      EXPECT_EQ(wholeOf(node.worldTransform()), expected.world);
      ASSERT_EQ(node.getChildCount(), expected.children.size());
      for (unsigned i = 0; i < node.getChildCount(); ++i) {
        EXPECT_EQ(node.getChild(i).get(), nodeOf(expected.children[i]));
      }
      if (expected.kind == WORLD) {
        World& world = dynamic_cast<World&>(node);
        ASSERT_EQ(world.getCameras().size(), expected.cameras.size());
        for (std::size_t i = 0; i < expected.cameras.size(); ++i) {
          EXPECT_EQ(world.getCameras()[i].get(), nodeOf(expected.cameras[i]));
        }
        ASSERT_EQ(world.getLights().size(), expected.lights.size());
        for (std::size_t i = 0; i < expected.lights.size(); ++i) {
          EXPECT_EQ(world.getLights()[i].get(), nodeOf(expected.lights[i]));
        }
      }
    }
  }

  std::mt19937 random;
  std::vector<shared_ptr<Node>> real;
  std::vector<int> ids;
  std::map<int, Node*> byId;
  int nextId = 0;
  Model model;
};

TEST_P(NodeTreeModel, AgreesAfterEveryStep) {
  for (int i = 0; i < STEPS && !HasFailure(); ++i) {
    SCOPED_TRACE("step " + std::to_string(i));
    step();
    compare();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, NodeTreeModel, testing::Values(1u, 2u, 3u, 4u));

}  // namespace
}  // namespace varnel_m3g
