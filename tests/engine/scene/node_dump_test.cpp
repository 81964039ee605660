// The dumps of the scene's objects, line by line.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/scene/mesh.h"
#include "engine/scene/morphing_mesh.h"
#include "engine/scene/skinned_mesh.h"
#include "engine/scene/sprite3d.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {
namespace {

using boost::shared_ptr;
using testing::ElementsAre;

template <class Call>
std::vector<std::string> linesOf(Call call) {
  testing::internal::CaptureStdout();
  call();
  std::istringstream text(testing::internal::GetCapturedStdout());
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) {
    lines.push_back(line);
  }
  return lines;
}

// The dump's lines from the given title on; what stands before it is the base classes'.
std::vector<std::string> dumpFrom(const std::string& title, Object3D& object) {
  std::vector<std::string> lines = linesOf([&] { object.dump(); });
  EXPECT_EQ(lines.front(), "OBJECT_3D");
  const auto start = std::find(lines.begin(), lines.end(), title);
  EXPECT_NE(start, lines.end());
  return std::vector<std::string>(start, lines.end());
}

shared_ptr<TriangleStripArray> oneTriangle() {
  const int lengths[] = {3};
  return TriangleStripArray::create(0, lengths, 1);
}

TEST(NodeDump, WritesItsFields) {
  const shared_ptr<Group> root = Group::create();
  const shared_ptr<Group> reference = Group::create();
  const shared_ptr<Light> node = Light::create();
  root->addChild(reference);
  root->addChild(node);
  reference->setUserID(12);
  node->setAlphaFactor(0.5f);
  node->setPickingEnable(false);
  node->setAlignment(reference, Node::ORIGIN, reference, Node::Y_AXIS);
  std::vector<std::string> lines = dumpFrom("Node Object", *node);
  lines.resize(10);
  EXPECT_THAT(lines,
              ElementsAre("Node Object", "===========", "EnableRendering: 1", "EnablePicking:   0",
                          "AlphaFactor:   0.5000", "Scope: 4294967295", "zTarget: ORGIN",
                          "yTarget: Y_AXIS", "zAlignementRef ID: 12", "yAlignementRef ID: 12"));
}

TEST(NodeDump, NamesTheTargets) {
  const shared_ptr<Group> node = Group::create();
  const char* const names[] = {"NONE", "ORGIN", "X_AXIS", "Y_AXIS", "Z_AXIS", "UNKNOWN"};
  for (int target = 0; target < 6; ++target) {
    node->setAlignment({}, target, {}, target == 0 ? 1 : 0);
    const std::vector<std::string> lines = dumpFrom("Node Object", *node);
    EXPECT_EQ(lines[6], std::string("zTarget: ") + names[target]);
    // Without references there are no lines for them.
    EXPECT_EQ(lines[8], "Group Object");
  }
}

TEST(GroupDump, ListsTheChildren) {
  const shared_ptr<Group> group = Group::create();
  for (int id : {3, 4}) {
    const shared_ptr<Group> child = Group::create();
    child->setUserID(id);
    group->addChild(child);
  }
  EXPECT_THAT(dumpFrom("Group Object", *group),
              ElementsAre("Group Object", "============", "Number of Childern: 2", "\tChild ID: 3",
                          "\tChild ID: 4"));
}

TEST(WorldDump, NamesCameraAndBackground) {
  const shared_ptr<World> world = World::create();
  EXPECT_THAT(dumpFrom("World Object", *world), ElementsAre("World Object", "============"));
  world->setActiveCamera(Camera::create());
  world->getActiveCamera()->setUserID(5);
  world->setBackground(Background::create());
  world->getBackground()->setUserID(6);
  EXPECT_THAT(dumpFrom("Group Object", *world),
              ElementsAre("Group Object", "============", "Number of Childern: 0", "World Object",
                          "============", "ActiveCamera ID: 5", "Background ID:   6"));
}

TEST(CameraDump, WritesOneColumnALine) {
  const shared_ptr<Camera> camera = Camera::create();
  camera->setParallel(4.0f, 2.0f, -1.0f, 3.0f);
  EXPECT_THAT(
      dumpFrom("Camera Object", *camera),
      ElementsAre("Camera Object", "=============", "ProjectionType: PARALLEL", "ProjectionMatrix:",
                  "  0.2500   0.0000   0.0000   0.0000", "  0.0000   0.5000   0.0000   0.0000",
                  "  0.0000   0.0000  -0.5000   0.0000", "  0.0000   0.0000  -0.5000   1.0000"));
  camera->setPerspective(60, 1, 1, 2);
  EXPECT_EQ(dumpFrom("Camera Object", *camera)[2], "ProjectionType: PERSPECTIVE");
  camera->setGeneric(camera->projection());
  EXPECT_EQ(dumpFrom("Camera Object", *camera)[2], "ProjectionType: GENERIC");
}

TEST(LightDump, WritesItsFields) {
  const shared_ptr<Light> light = Light::create();
  light->setColor(0xABCDEF);
  light->setAttenuation(1, 0.5f, 0.25f);
  light->setSpotExponent(2);
  EXPECT_THAT(dumpFrom("Light Object", *light),
              ElementsAre("Light Object", "============", "AttenuationConstant:    1.0000",
                          "AttenuationLinear:      0.5000", "AttenuationQuadratic:   0.2500",
                          "ColorRGB: 0xABCDEF", "Mode: DIRECTIONAL", "Intensity:      1.0000",
                          "SpotAngle:     45.0000", "SpotExponent:   2.0000"));
  const char* const names[] = {"AMBIENT", "DIRECTIONAL", "OMNI", "SPOT", "UNKNOWN"};
  for (int i = 0; i < 5; ++i) {
    light->setMode(Light::AMBIENT + i);
    EXPECT_EQ(dumpFrom("Light Object", *light)[6], std::string("Mode: ") + names[i]);
  }
}

TEST(MeshDump, ListsTheSubmeshes) {
  const shared_ptr<VertexBuffer> vertices = VertexBuffer::create();
  vertices->setUserID(1);
  const shared_ptr<IndexBuffer> submeshes[] = {oneTriangle(), oneTriangle()};
  submeshes[0]->setUserID(2);
  submeshes[1]->setUserID(3);
  const shared_ptr<Mesh> mesh = Mesh::create(vertices, submeshes, nullptr, 2);
  mesh->setAppearance(0, Appearance::create());
  mesh->getAppearance(0)->setUserID(4);
  EXPECT_THAT(dumpFrom("Mesh Object", *mesh),
              ElementsAre("Mesh Object", "===========", "VertexBuffer ID: 1", "SubmeshCount ID: 2",
                          "\tIndexBuffer ID: 2", "\tAppearance ID:  4", "\tIndexBuffer ID: 3"));
}

TEST(MeshDump, ExaminesTheVertexBuffer) {
  const shared_ptr<Mesh> mesh = Mesh::create(VertexBuffer::create(), oneTriangle(), {});
  const std::vector<std::string> lines = linesOf([&] { mesh->examineVertexBuffer(); });
  EXPECT_EQ(lines[0], "Examining the VertexBuffer of a Mesh node : ");
  EXPECT_EQ(lines[1], "OBJECT_3D");
  EXPECT_THAT(lines, testing::Contains("VertexBuffer Object"));
}

TEST(NodeDumpTree, WritesALineForEachNode) {
  const shared_ptr<World> world = World::create();
  const shared_ptr<Group> group = Group::create();
  world->addChild(Camera::create());
  world->addChild(group);
  group->addChild(Light::create());
  group->addChild(Mesh::create(VertexBuffer::create(), oneTriangle(), {}));
  const shared_ptr<VertexBuffer> targets[] = {VertexBuffer::create()};
  group->addChild(MorphingMesh::create(VertexBuffer::create(), targets, 1, oneTriangle(), {}));
  group->addChild(SkinnedMesh::create(VertexBuffer::create(), oneTriangle(), {}, Group::create()));
  group->addChild(Sprite3D::create(true, Image2D::create(Image2D::RGB, 1, 1), {}));
  world->addChild(Light::create());
  world->updateWorldTransforms(false, world->worldTransform());
  group->getChild(0)->translate(1, 0, 0);
  EXPECT_THAT(linesOf([&] { world->dumpTree(1); }),
              ElementsAre("+---World (false, false, true)",        //
                          "    +---Camera (false, false, false)",  //
                          "    +---Group (false, false, true)",    //
                          "        +---Light (false, true, false)",
                          "        +---Mesh (false, false, false)",
                          "        +---MorphingMesh (false, false, false)",
                          "        +---SkinnedMesh (false, false, false)",
                          "            +---Group (false, false, false)",
                          "        +---Sprite3D (false, false, false)",
                          "    +---Light (false, false, false)"));
}

}  // namespace
}  // namespace varnel_m3g
