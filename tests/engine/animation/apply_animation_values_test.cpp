#include <gtest/gtest.h>

#include <boost/shared_ptr.hpp>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/surface/background.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/material.h"
#include "engine/surface/texture2d.h"
#include "tests/engine/animation/animation_scene.h"

namespace varnel_m3g {
namespace {

using varnel_test::addConstantTrack;
using varnel_test::removeTracks;

using State = std::map<std::string, std::string>;

std::string text(float value) {
  std::ostringstream out;
  out.precision(9);
  out << value;
  return out.str();
}

std::string text(const float* values, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    all += i > 0 ? " " : "";
    all += text(values[i]);
  }
  return all;
}

std::string hex(int value) {
  std::ostringstream out;
  out << std::hex << value;
  return out.str();
}

// Everything of an object that some property may change.
State stateOf(Object3D& object) {
  State state;
  float v[4] = {};
  if (auto* transformable = dynamic_cast<Transformable*>(&object)) {
    transformable->getTranslation(v);
    state["translation"] = text(v, 3);
    transformable->getScale(v);
    state["scale"] = text(v, 3);
    transformable->getOrientation(v);
    state["orientation"] = text(v, 4);
  }
  if (auto* node = dynamic_cast<Node*>(&object)) {
    state["alpha"] = text(node->getAlphaFactor());
    state["picking"] = node->isPickingEnabled() ? "on" : "off";
    state["rendering"] = node->isRenderingEnabled() ? "on" : "off";
  }
  if (auto* light = dynamic_cast<Light*>(&object)) {
    state["color"] = hex(light->getColor());
    state["intensity"] = text(light->getIntensity());
    state["spot angle"] = text(light->getSpotAngle());
    state["spot exponent"] = text(light->getSpotExponent());
  }
  if (auto* camera = dynamic_cast<Camera*>(&object)) {
    const int type = camera->getProjection(v);
    state["projection"] = std::to_string(type) + (type == 48 ? "" : " " + text(v, 4));
  }
  if (auto* material = dynamic_cast<Material*>(&object)) {
    state["ambient"] = hex(material->getColor(1024));
    state["diffuse"] = hex(material->getColor(2048));
    state["emissive"] = hex(material->getColor(4096));
    state["specular"] = hex(material->getColor(8192));
    state["shininess"] = text(material->getShininess());
  }
  if (auto* buffer = dynamic_cast<VertexBuffer*>(&object)) {
    state["color"] = hex(buffer->getDefaultColor());
  }
  if (auto* fog = dynamic_cast<Fog*>(&object)) {
    state["color"] = hex(fog->getColor());
    state["density"] = text(fog->getDensity());
    state["linear"] = text(fog->getNearDistance()) + " " + text(fog->getFarDistance());
  }
  if (auto* background = dynamic_cast<Background*>(&object)) {
    state["color"] = hex(background->getColor());
    state["crop"] = std::to_string(background->getCropX()) + " " +
                    std::to_string(background->getCropY()) + " " +
                    std::to_string(background->getCropWidth()) + " " +
                    std::to_string(background->getCropHeight());
  }
  if (auto* texture = dynamic_cast<Texture2D*>(&object)) {
    state["color"] = hex(texture->getBlendColor());
  }
  return state;
}

using Maker = std::function<boost::shared_ptr<Object3D>()>;

boost::shared_ptr<Object3D> makeCamera(int type) {
  const auto camera = Camera::create();
  if (type == 49) {
    camera->setParallel(2, 1, 3, 4);
  } else if (type == 50) {
    camera->setPerspective(60, 1, 3, 4);
  }
  return camera;
}

// Each class that a property names, and one that none names.
const std::map<std::string, Maker>& classes() {
  static const std::map<std::string, Maker> makers = {
      {"Group", [] { return Group::create(); }},
      {"Light",
       [] {
         const auto light = Light::create();
         light->setColor(0x123456);
         return light;
       }},
      {"generic Camera", [] { return makeCamera(48); }},
      {"parallel Camera", [] { return makeCamera(49); }},
      {"perspective Camera", [] { return makeCamera(50); }},
      {"Material", [] { return Material::create(); }},
      {"VertexBuffer", [] { return VertexBuffer::create(); }},
      {"Fog",
       [] {
         const auto fog = Fog::create();
         fog->setColor(0x123456);
         fog->setLinear(3, 4);
         return fog;
       }},
      {"Background",
       [] {
         const auto background = Background::create();
         background->setColor(0x123456);
         return background;
       }},
      {"Texture2D",
       [] {
         const auto texture = Texture2D::create(Image2D::create(Image2D::RGB, 2, 2));
         texture->setBlendColor(0x123456);
         return texture;
       }},
      {"KeyframeSequence", [] { return KeyframeSequence::create(1, 1, KeyframeSequence::LINEAR); }},
  };
  return makers;
}

struct Row {
  int property;
  std::vector<float> values;
  /// Per class: the field that changes and its new text.
  std::map<std::string, std::pair<std::string, std::string>> effects;
};

const std::vector<std::string> nodes = {"Group", "Light", "generic Camera", "parallel Camera",
                                        "perspective Camera"};

std::map<std::string, std::pair<std::string, std::string>> onNodes(const std::string& field,
                                                                   const std::string& value,
                                                                   bool texturesToo = false) {
  std::map<std::string, std::pair<std::string, std::string>> effects;
  for (const std::string& name : nodes) {
    effects[name] = {field, value};
  }
  if (texturesToo) {
    effects["Texture2D"] = {field, value};
  }
  return effects;
}

std::vector<Row> rows() {
  const std::string tiny = text(std::numeric_limits<float>::denorm_min());
  return {
      {256, {0.25F}, onNodes("alpha", "0.25")},
      {257, {1, 0, 0}, {{"Material", {"ambient", "1"}}}},
      {257, {1, 1}, {}},
      {258,
       {0, 1, 0},
       {{"VertexBuffer", {"color", "1"}},
        {"Light", {"color", "1"}},
        {"Fog", {"color", "1"}},
        {"Background", {"color", "1"}},
        {"Texture2D", {"color", "1"}}}},
      // Black: only those with an alpha of 1 see a term.
      {258,
       {0, 0, 0},
       {{"VertexBuffer", {"color", "1"}},
        {"Light", {"color", "0"}},
        {"Fog", {"color", "0"}},
        {"Background", {"color", "1"}},
        {"Texture2D", {"color", "0"}}}},
      {258, {0, 0}, {}},
      {259, {1, 2}, {}},
      {259, {1, 2, 3, 4}, {}},
      {260, {2.5F}, {{"Fog", {"density", "2.5"}}}},
      {260, {-2.5F}, {{"Fog", {"density", "0"}}}},
      {261, {0, 0, 0}, {{"Material", {"diffuse", "1"}}}},
      {261, {1, 1}, {}},
      {262, {0, 0, 0}, {{"Material", {"emissive", "1"}}}},
      {262, {1, 1}, {}},
      {263,
       {7},
       {{"parallel Camera", {"projection", "49 2 1 3 7"}},
        {"perspective Camera", {"projection", "50 60 1 3 7"}},
        {"Fog", {"linear", "3 7"}}}},
      {264,
       {20},
       {{"parallel Camera", {"projection", "49 20 1 3 4"}},
        {"perspective Camera", {"projection", "50 20 1 3 4"}}}},
      {265, {-3}, {{"Light", {"intensity", "-3"}}}},
      {266, {1}, {}},
      {267,
       {2},
       {{"parallel Camera", {"projection", "49 2 1 2 4"}},
        {"perspective Camera", {"projection", "50 60 1 2 4"}},
        {"Fog", {"linear", "2 4"}}}},
      {267,
       {-2},
       {{"parallel Camera", {"projection", "49 2 1 -2 4"}},
        {"perspective Camera", {"projection", "50 60 1 " + tiny + " 4"}},
        {"Fog", {"linear", "-2 4"}}}},
      // A turn by 180 degrees about z, not of unit length.
      {268, {0, 0, 5, 0}, onNodes("orientation", "180 0 0 1", true)},
      {268, {0, 0, 5}, {}},
      {269, {0.49F}, onNodes("picking", "off")},
      {269, {0.5F}, {}},
      {270, {2}, onNodes("scale", "2 2 2", true)},
      {270, {2, 3, 4}, onNodes("scale", "2 3 4", true)},
      {270, {2, 3}, {}},
      {270, {2, 3, 4, 5}, {}},
      {271, {100}, {{"Material", {"shininess", "100"}}}},
      {271, {-1}, {}},
      {271, {129}, {{"Material", {"shininess", "128"}}}},
      {272, {0, 0, 0}, {{"Material", {"specular", "1"}}}},
      {272, {1, 1}, {}},
      {273, {60}, {{"Light", {"spot angle", "60"}}}},
      {273, {91}, {{"Light", {"spot angle", "90"}}}},
      {273, {-1}, {{"Light", {"spot angle", "0"}}}},
      {274, {60}, {{"Light", {"spot exponent", "60"}}}},
      {274, {129}, {{"Light", {"spot exponent", "128"}}}},
      {274, {-1}, {}},
      {275, {1, 2, 3}, onNodes("translation", "1 2 3", true)},
      {275, {1, 2}, {}},
      {276, {0.49F}, onNodes("rendering", "off")},
      {276, {0.5F}, {}},
      {277, {1, 2, 3, 4}, {}},
      {255, {1, 2, 3, 4}, {}},
      {-1, {1, 2, 3, 4}, {}},
  };
}

TEST(ApplyAnimationValues, EachPropertyReachesItsClassesAndNoOther) {
  for (const Row& row : rows()) {
    for (const auto& [name, make] : classes()) {
      const boost::shared_ptr<Object3D> object = make();
      State expected = stateOf(*object);
      const auto effect = row.effects.find(name);
      if (effect != row.effects.end()) {
        ASSERT_TRUE(expected.count(effect->second.first) == 1) << effect->second.first;
        ASSERT_NE(expected[effect->second.first], effect->second.second) << "the change would not "
                                                                            "show";
        expected[effect->second.first] = effect->second.second;
      }
      addConstantTrack(*object, row.property, row.values);
      object->animate(0);
      EXPECT_EQ(stateOf(*object), expected)
          << "property " << row.property << " of " << row.values.size() << " on " << name;
    }
  }
}

TEST(ApplyAnimationValues, AlphaEntersColoursThatHaveOne) {
  struct Case {
    std::string name;
    int property;
    std::string field;
    std::string withoutAlpha;
  };
  const Case cases[] = {{"VertexBuffer", 258, "color", "0"}, {"Background", 258, "color", "0"},
                        {"Material", 261, "diffuse", "0"},   {"Light", 258, "color", "0"},
                        {"Material", 257, "ambient", "1"},   {"Material", 262, "emissive", "1"},
                        {"Material", 272, "specular", "1"}};
  for (const Case& c : cases) {
    const boost::shared_ptr<Object3D> object = classes().at(c.name)();
    addConstantTrack(*object, c.property, {0, 0, 0});
    addConstantTrack(*object, AnimationTrack::ALPHA, {0});
    object->animate(0);
    EXPECT_EQ(stateOf(*object)[c.field], c.withoutAlpha) << c.name << " " << c.property;
  }
}

TEST(ApplyAnimationValues, AlphaAloneChangesNoColour) {
  for (const std::string name : {"VertexBuffer", "Background", "Material", "Fog", "Texture2D"}) {
    const boost::shared_ptr<Object3D> object = classes().at(name)();
    const State before = stateOf(*object);
    addConstantTrack(*object, AnimationTrack::ALPHA, {0.5F});
    object->animate(0);
    EXPECT_EQ(stateOf(*object), before) << name;
  }
}

TEST(ApplyAnimationValues, TracksOfOnePropertyAreSummed) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::TRANSLATION, {4, 8, 12}, 0.25F);
  addConstantTrack(*group, AnimationTrack::TRANSLATION, {2, 4, 6}, 0.5F);
  group->animate(0);
  EXPECT_EQ(stateOf(*group)["translation"], "2 4 6");
}

TEST(ApplyAnimationValues, ASingleWeightScalesItsValue) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::TRANSLATION, {4, 8, 12}, 0.5F);
  group->animate(0);
  EXPECT_EQ(stateOf(*group)["translation"], "2 4 6");
}

TEST(ApplyAnimationValues, SumsRunOverTheSmallerCount) {
  for (const bool largeFirst : {true, false}) {
    const auto group = Group::create();
    addConstantTrack(*group, AnimationTrack::SCALE,
                     largeFirst ? std::vector<float>{2, 3, 4} : std::vector<float>{5});
    addConstantTrack(*group, AnimationTrack::SCALE,
                     largeFirst ? std::vector<float>{5} : std::vector<float>{2, 3, 4});
    group->animate(0);
    EXPECT_EQ(stateOf(*group)["scale"], "7 7 7");
  }
}

TEST(ApplyAnimationValues, QuaternionsAreSummedAndThenNormalised) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::ORIENTATION, {0, 0, 1, 0});
  addConstantTrack(*group, AnimationTrack::ORIENTATION, {0, 0, 0, 1});
  group->animate(0);
  float orientation[4];
  group->getOrientation(orientation);
  EXPECT_NEAR(orientation[0], 90, 1e-4);
  EXPECT_NEAR(orientation[3], 1, 1e-6);
}

TEST(ApplyAnimationValues, NoRotationTurnsAboutX) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::ORIENTATION, {0, 0, 0, 3});
  group->animate(0);
  testing::internal::CaptureStdout();
  group->dump();
  const std::string dump = testing::internal::GetCapturedStdout();
  EXPECT_NE(dump.find("OrientationAxis:  [  1.0000   0.0000   0.0000]"), std::string::npos) << dump;
}

TEST(ApplyAnimationValues, OrientationKeepsTheQuaternionInStep) {
  const auto group = Group::create();
  addConstantTrack(*group, AnimationTrack::ORIENTATION, {0, 0, 0.5F, 0.8660254F});
  group->animate(0);
  removeTracks(*group);
  group->postRotate(30, 0, 0, 1);
  float orientation[4];
  group->getOrientation(orientation);
  EXPECT_NEAR(orientation[0], 90, 1e-3);
}

TEST(ApplyAnimationValues, PropertiesAreAppliedInAscendingOrder) {
  // The near distance is checked against the far one that is there when its turn comes.
  const auto camera = Camera::create();
  camera->setPerspective(60, 1, 1, 10);
  addConstantTrack(*camera, AnimationTrack::NEAR_DISTANCE, {50});
  addConstantTrack(*camera, AnimationTrack::FAR_DISTANCE, {100});
  camera->animate(0);
  float params[4];
  camera->getProjection(params);
  EXPECT_EQ(text(params, 4), "60 1 50 100");
}

TEST(ApplyAnimationValues, ARefusedValueEndsTheObjectsTurn) {
  struct Case {
    std::string name;
    int property;
    std::vector<float> values;
    const char* text;
  };
  const Case cases[] = {
      {"Group", 256, {1.5F}, "Node.setAlphaFactor  invalid value for alphaFactor arg."},
      {"perspective Camera",
       264,
       {200},
       "Camera.setPerspective - fovy argument must be less than 180 degrees"},
      {"perspective Camera", 263, {-7}, "Camera.setPerspective - far argument must be >= 0.0"},
      {"perspective Camera", 264, {-1}, "Camera.setPerspective - fovy argument must be >= 0.0"},
  };
  for (const Case& c : cases) {
    const boost::shared_ptr<Object3D> object = classes().at(c.name)();
    addConstantTrack(*object, c.property, c.values);
    addConstantTrack(*object, AnimationTrack::TRANSLATION, {1, 2, 3});
    try {
      object->animate(0);
      FAIL() << c.text;
    } catch (const std::invalid_argument& e) {
      EXPECT_STREQ(e.what(), c.text);
    }
    EXPECT_EQ(stateOf(*object)["translation"], "0 0 0");
  }
}

TEST(ApplyAnimationValues, AFarDistanceWithoutPerspectiveMayBeNegative) {
  const boost::shared_ptr<Object3D> camera = makeCamera(49);
  addConstantTrack(*camera, AnimationTrack::FAR_DISTANCE, {-7});
  camera->animate(0);
  EXPECT_EQ(stateOf(*camera)["projection"], "49 2 1 3 -7");
  const boost::shared_ptr<Object3D> fog = classes().at("Fog")();
  addConstantTrack(*fog, AnimationTrack::FAR_DISTANCE, {-7});
  fog->animate(0);
  EXPECT_EQ(stateOf(*fog)["linear"], "3 -7");
}

TEST(ApplyAnimationValues, ParallelHeightStaysPositive) {
  const boost::shared_ptr<Object3D> camera = makeCamera(49);
  addConstantTrack(*camera, AnimationTrack::FIELD_OF_VIEW, {-1});
  camera->animate(0);
  EXPECT_EQ(stateOf(*camera)["projection"],
            "49 " + text(std::numeric_limits<float>::denorm_min()) + " 1 3 4");
}

}  // namespace
}  // namespace varnel_m3g
