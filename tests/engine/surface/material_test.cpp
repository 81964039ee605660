#include "engine/surface/material.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/object_checks.h"

namespace varnel_m3g {
namespace {

using varnel_test::baseDump;
using varnel_test::duplicateOf;
using varnel_test::expectFailure;
using varnel_test::outputOf;

constexpr int TARGETS[] = {1024, 2048, 4096, 8192};

const float* floatsOf(const Material& material, int target) {
  switch (target) {
    case 1024:
      return material.getAmbient();
    case 2048:
      return material.getDiffuse();
    case 4096:
      return material.getEmissive();
    default:
      return material.getSpecular();
  }
}

void expectFloats(const float* color, float r, float g, float b, float a) {
  EXPECT_EQ(color[0], r);
  EXPECT_EQ(color[1], g);
  EXPECT_EQ(color[2], b);
  EXPECT_EQ(color[3], a);
}

// All that the getters tell, as one text.
std::string stateOf(const Material& material) {
  std::string state;
  for (const int target : TARGETS) {
    state += std::to_string(material.getColor(target)) + ":";
    for (int i = 0; i < 4; ++i) {
      state += std::to_string(floatsOf(material, target)[i]) + " ";
    }
  }
  return state + std::to_string(material.getShininess()) + " " +
         std::to_string(material.isVertexColorTrackingEnabled());
}

TEST(Material, StartsWithGreyAmbientAndDiffuse) {
  const auto material = Material::create();
  EXPECT_EQ(material->getColor(Material::AMBIENT), 0x00333333);
  EXPECT_EQ(material->getColor(Material::DIFFUSE), static_cast<int>(0xFFCCCCCCu));
  EXPECT_EQ(material->getColor(Material::EMISSIVE), 0);
  EXPECT_EQ(material->getColor(Material::SPECULAR), 0);
  expectFloats(material->getAmbient(), 0.2f, 0.2f, 0.2f, 0.0f);
  expectFloats(material->getDiffuse(), 0.8f, 0.8f, 0.8f, 1.0f);
  expectFloats(material->getEmissive(), 0.0f, 0.0f, 0.0f, 0.0f);
  expectFloats(material->getSpecular(), 0.0f, 0.0f, 0.0f, 0.0f);
  EXPECT_EQ(material->getShininess(), 0.0f);
  EXPECT_FALSE(material->isVertexColorTrackingEnabled());
  EXPECT_EQ(material->getReferences(nullptr, 0), 0u);
}

TEST(Material, OnlyTheDiffuseColorBringsItsAlpha) {
  for (const int target : TARGETS) {
    const auto material = Material::create();
    for (const int color : {0x12345678, -1, 0, static_cast<int>(0x80402010u)}) {
      material->setColor(target, color);
      EXPECT_EQ(material->getColor(target), color);
      const unsigned bits = static_cast<unsigned>(color);
      expectFloats(floatsOf(*material, target), static_cast<float>(((bits >> 16) & 255) / 255.0),
                   static_cast<float>(((bits >> 8) & 255) / 255.0),
                   static_cast<float>((bits & 255) / 255.0),
                   target == 2048 ? static_cast<float>((bits >> 24) / 255.0) : 0.0f);
    }
  }
}

TEST(Material, SetsAllColorsOfAMask) {
  const auto material = Material::create();
  material->setColor(Material::AMBIENT | Material::SPECULAR, 0x00112233);
  EXPECT_EQ(material->getColor(Material::AMBIENT), 0x00112233);
  EXPECT_EQ(material->getColor(Material::SPECULAR), 0x00112233);
  EXPECT_EQ(material->getColor(Material::DIFFUSE), static_cast<int>(0xFFCCCCCCu));
  EXPECT_EQ(material->getColor(Material::EMISSIVE), 0);
  expectFailure<std::invalid_argument>(
      [&] { material->getColor(Material::AMBIENT | Material::SPECULAR); },
      "Invalid target argument.");
}

TEST(Material, AnEmptyMaskIsSilentAndChangesNothing) {
  const auto material = Material::create();
  const std::string before = stateOf(*material);
  material->setColor(0, -1);
  EXPECT_EQ(stateOf(*material), before);
}

TEST(Material, RefusesMasksWithOtherBitsAndStaysAsItWas) {
  const auto material = Material::create();
  const std::string before = stateOf(*material);
  for (const int target : {1024 | 1, 1, 512, 16384, -1, std::numeric_limits<int>::min()}) {
    expectFailure<std::invalid_argument>(
        [&] { material->setColor(target, 0x01020304); },
        "Invalid target argument.  Value is out of expected range");
    EXPECT_EQ(stateOf(*material), before);
  }
}

TEST(Material, ReadsExactlyOneColor) {
  const auto material = Material::create();
  for (const int target : {0, 1, 1024 | 2048, 0x3C00, -1}) {
    expectFailure<std::invalid_argument>([&] { material->getColor(target); },
                                         "Invalid target argument.");
  }
}

class OrderedMaterial : public Material {
 public:
  void setAmbientColor(int) override { calls.push_back("ambient"); }
  void setDiffuseColor(int) override { calls.push_back("diffuse"); }
  void setSpecularColor(int) override { calls.push_back("specular"); }
  void setEmissiveColor(int) override { calls.push_back("emissive"); }
  std::vector<std::string> calls;
};

TEST(Material, CallsTheColorSettersAmbientDiffuseEmissiveSpecular) {
  const boost::shared_ptr<OrderedMaterial> material(new OrderedMaterial);
  material->setColor(0x3C00, 0);
  EXPECT_EQ(material->calls,
            (std::vector<std::string>{"ambient", "diffuse", "emissive", "specular"}));
}

TEST(Material, StoresEveryShininess) {
  const auto material = Material::create();
  for (const float shininess :
       {-1.0f, 1000.0f, 0.0f, 128.0f, std::numeric_limits<float>::infinity()}) {
    material->setShininess(shininess);
    EXPECT_EQ(material->getShininess(), shininess);
  }
  material->setShininess(NAN);
  EXPECT_TRUE(std::isnan(material->getShininess()));
}

TEST(Material, SwitchesVertexColorTracking) {
  const auto material = Material::create();
  material->setVertexColorTrackingEnable(true);
  EXPECT_TRUE(material->isVertexColorTrackingEnabled());
  material->setVertexColorTrackingEnable(false);
  EXPECT_FALSE(material->isVertexColorTrackingEnabled());
}

TEST(Material, DumpsItsFields) {
  const auto material = Material::create();
  material->setColor(Material::EMISSIVE, 0x00ABCDEF);
  material->setShininess(2.5f);
  material->setVertexColorTrackingEnable(true);
  EXPECT_EQ(outputOf([&] { material->dump(); }), baseDump() +
                                                     "Material Object\n"
                                                     "===============\n"
                                                     "AmbientColor:  0x333333\n"
                                                     "DiffuseColor:  0xFFCCCCCC\n"
                                                     "EmissiveColor: 0xABCDEF\n"
                                                     "SpecularColor: 0x0\n"
                                                     "Shininess:     2.500000\n"
                                                     "VertexColorTrackingEnabled: 1\n");
}

TEST(Material, DuplicateCopiesAndIsIndependent) {
  const auto material = Material::create();
  material->setUserID(11);
  material->setColor(Material::AMBIENT, 0x11223344);
  material->setColor(Material::DIFFUSE, 0x22334455);
  material->setColor(Material::EMISSIVE, 0x33445566);
  material->setColor(Material::SPECULAR, 0x44556677);
  material->setShininess(-3.0f);
  material->setVertexColorTrackingEnable(true);
  const auto copy = duplicateOf(*material);
  EXPECT_EQ(copy->getUserID(), 11);
  EXPECT_EQ(stateOf(*copy), stateOf(*material));
  const std::string before = stateOf(*material);
  copy->setColor(0x3C00, 0);
  copy->setShininess(1.0f);
  EXPECT_EQ(stateOf(*material), before);
}

TEST(Material, TheFloatColorsOfADuplicateComeFromTheIntegers) {
  const auto material = Material::create();
  material->setDiffuseAlpha(0.25f);
  EXPECT_EQ(duplicateOf(*material)->getDiffuse()[3], 1.0f);
}

}  // namespace
}  // namespace varnel_m3g
