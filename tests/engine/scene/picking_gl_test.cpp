// What a camera picks and what it shows.

#include <map>
#include <random>

#include "engine/scene/ray_intersection.h"
#include "tests/support/pixel_fixture.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;

constexpr int SIZE = 64;

class PickPictureTest : public PixelTest {
 protected:
  PickPictureTest() : PixelTest(SIZE, SIZE) {
    camera->setPerspective(70, 1, 1, 100);
    camera->setTranslation(1, 2, 12);
    camera->setOrientation(8, 1, 1, 0);
    world->addChild(camera);
    world->setActiveCamera(camera);
  }

  // A triangle of one colour somewhere in view, every other one seen from both sides.
  void addTriangle(unsigned rgb) {
    std::uniform_int_distribution<int> coordinate(-40, 40);
    ShortArray corners;
    for (int i = 0; i < 9; ++i) {
      corners.push_back(static_cast<short>(coordinate(random)));
    }
    const shared_ptr<VertexBuffer> vertices = VertexBuffer::create();
    vertices->setPositions(shortArray(3, corners), 0.1f, nullptr);
    vertices->setDefaultColor(static_cast<int>(0xFF000000u | rgb));
    const shared_ptr<Appearance> appearance = plainAppearance();
    if (colors.size() % 2 == 0) {
      const shared_ptr<PolygonMode> mode = PolygonMode::create();
      mode->setCulling(PolygonMode::CULL_NONE);
      appearance->setPolygonMode(mode);
    }
    const int length = 3;
    const shared_ptr<Mesh> mesh =
        Mesh::create(vertices, TriangleStripArray::create(0, &length, 1), appearance);
    const shared_ptr<Group> group = Group::create();
    group->setTranslation(0, 1, -2);
    group->setOrientation(static_cast<float>(random() % 360), 0, 1, 1);
    group->addChild(mesh);
    world->addChild(group);
    colors[mesh] = {static_cast<int>(rgb >> 16), static_cast<int>((rgb >> 8) & 255),
                    static_cast<int>(rgb & 255), 255};
  }

  // The mesh picked at the middle of a pixel; the near point is doubled, so half the way from the
  // middle of the picture leads there.
  shared_ptr<Node> pickAt(int column, int row) {
    const float x = (static_cast<float>(column) + 0.5f) / SIZE;
    const float y = (static_cast<float>(row) + 0.5f) / SIZE;
    RayIntersection result;
    const bool hit =
        world->pickThroughCamera(-1, 0.25f + 0.5f * x, 0.25f + 0.5f * y, camera, &result);
    EXPECT_EQ(hit, result.getIntersected() != nullptr);
    return result.getIntersected();
  }

  shared_ptr<World> world = World::create();
  std::map<shared_ptr<Node>, Pixel> colors;
  std::mt19937 random{11};
};

TEST_F(PickPictureTest, ThePixelPickedShowsTheMeshThatThePickReports) {
  int hits = 0;
  int misses = 0;
  for (int scene = 0; scene < 24; ++scene) {
    for (const auto& [mesh, color] : colors) {
      const shared_ptr<Node> group = mesh->getParent();
      world->removeChild(group);
    }
    colors.clear();
    for (const unsigned rgb : {0xFF0000u, 0x00FF00u, 0x0000FFu, 0xFFFF00u, 0x00FFFFu}) {
      addTriangle(rgb);
    }
    graphics.releaseTarget();
    graphics.bindTarget(&gl.surface());
    graphics.render(world);
    const std::vector<Pixel> picture = gl.read();
    const auto at = [&](int column, int row) {
      return picture[static_cast<std::size_t>(row * SIZE + column)];
    };
    for (int row = 1; row < SIZE - 1; ++row) {
      for (int column = 1; column < SIZE - 1; ++column) {
        // Beside an edge the two may differ by a rounding.
        bool even = true;
        for (int dy = -1; dy <= 1; ++dy) {
          for (int dx = -1; dx <= 1; ++dx) {
            even = even && at(column + dx, row + dy) == at(column, row);
          }
        }
        if (!even) {
          continue;
        }
        const Pixel shown = at(column, row);
        const shared_ptr<Node> picked = pickAt(column, row);
        if (!picked) {
          ++misses;
          EXPECT_EQ(shown[0] + shown[1] + shown[2], 0)
              << "scene " << scene << ", column " << column << ", row " << row;
        } else {
          ++hits;
          EXPECT_EQ(shown, colors[picked])
              << "scene " << scene << ", column " << column << ", row " << row;
        }
      }
    }
  }
  EXPECT_GT(hits, 1000);
  EXPECT_GT(misses, 1000);
}

}  // namespace
}  // namespace varnel_m3g
