// Files by other exporters, from the folder that VARNEL_SAMPLES names: each must give what
// NAME.expected.json beside it says.

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>

#include "engine/animation/animation_controller.h"
#include "engine/animation/animation_track.h"
#include "engine/animation/keyframe_sequence.h"
#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/object/engine_limits.h"
#include "engine/scene/camera.h"
#include "engine/scene/light.h"
#include "engine/scene/morphing_mesh.h"
#include "engine/scene/skinned_mesh.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"
#include "tests/support/json.h"
#include "tests/support/loading.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

namespace fs = std::filesystem;
using varnel_test::CurrentFolder;
using varnel_test::Json;
using varnel_test::Loaded;

template <class T>
boost::shared_ptr<T> as(const boost::shared_ptr<Object3D>& object) {
  return boost::dynamic_pointer_cast<T>(object);
}

const char* className(const boost::shared_ptr<Object3D>& object) {
  // Derived classes before their bases.
  if (as<World>(object))
    return "World";
  if (as<Group>(object))
    return "Group";
  if (as<SkinnedMesh>(object))
    return "SkinnedMesh";
  if (as<MorphingMesh>(object))
    return "MorphingMesh";
  if (as<Mesh>(object))
    return "Mesh";
  if (as<Camera>(object))
    return "Camera";
  if (as<Light>(object))
    return "Light";
  if (as<Image2D>(object))
    return "Image2D";
  if (as<Texture2D>(object))
    return "Texture2D";
  if (as<Appearance>(object))
    return "Appearance";
  if (as<Background>(object))
    return "Background";
  if (as<CompositingMode>(object))
    return "CompositingMode";
  if (as<PolygonMode>(object))
    return "PolygonMode";
  if (as<Material>(object))
    return "Material";
  if (as<Fog>(object))
    return "Fog";
  if (as<VertexArray>(object))
    return "VertexArray";
  if (as<VertexBuffer>(object))
    return "VertexBuffer";
  if (as<TriangleStripArray>(object))
    return "TriangleStripArray";
  if (as<KeyframeSequence>(object))
    return "KeyframeSequence";
  if (as<AnimationController>(object))
    return "AnimationController";
  if (as<AnimationTrack>(object))
    return "AnimationTrack";
  return "unknown";
}

/// The object that an index of the file names, empty for 0.
boost::shared_ptr<Object3D> named(const Loaded& loaded, const Json& index) {
  const int i = index.int32();
  return i == 0 ? boost::shared_ptr<Object3D>() : loaded.at<Object3D>(static_cast<std::size_t>(i));
}

template <class T>
void expectArray(const Json& expected, const std::vector<T>& values, const char* what) {
  ASSERT_EQ(values.size(), static_cast<std::size_t>(expected["count"].number())) << what;
  const std::vector<Json>& first = expected["first8"].array();
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_EQ(values[i], static_cast<T>(first[i].number())) << what << " " << i;
  }
  const unsigned long sum = crc32(0, reinterpret_cast<const Bytef*>(values.data()),
                                  static_cast<uInt>(values.size() * sizeof(T)));
  EXPECT_EQ(sum, std::strtoul(expected["crc32"].text().c_str(), nullptr, 16)) << what;
}

void expectFloats(const Json& expected, const float* values, const char* what) {
  for (std::size_t i = 0; i < expected.array().size(); ++i) {
    EXPECT_EQ(values[i], static_cast<float>(expected.array()[i].number())) << what << " " << i;
  }
}

void checkNode(const Loaded& loaded, const Json& expected, Node& node) {
  EXPECT_EQ(node.isRenderingEnabled(), expected["enableRendering"].boolean());
  EXPECT_EQ(node.isPickingEnabled(), expected["enablePicking"].boolean());
  EXPECT_EQ(node.getAlphaFactor(), static_cast<float>(expected["alphaFactor"].number()));
  EXPECT_EQ(node.getScope(), expected["scope"].int32());
  EXPECT_EQ(node.getParent(), named(loaded, expected["parent"]));
  const std::vector<Json>& children = expected["children"].array();
  ASSERT_GE(node.Node::getChildCount(), children.size());
  for (std::size_t i = 0; i < children.size(); ++i) {
    EXPECT_EQ(node.Node::getChild(static_cast<unsigned>(i)), named(loaded, children[i]));
  }
}

void checkTransformable(const Json& expected, Transformable& transformable) {
  if (expected["general"].isNull()) {
    return;
  }
  Transform general;
  transformable.getTransform(general);
  float values[16];
  general.get(values);
  expectFloats(expected["general"], values, "general");
}

void checkObject(const Loaded& loaded, const Json& expected,
                 const boost::shared_ptr<Object3D>& object) {
  EXPECT_EQ(object->getUserID(), expected["userID"].int32());
  const std::vector<Json>& tracks = expected["animationTracks"].array();
  ASSERT_EQ(object->getAnimationTrackCount(), tracks.size());
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    EXPECT_EQ(object->getAnimationTrack(static_cast<unsigned>(i)), named(loaded, tracks[i]));
  }
  const std::vector<Json>& references = expected["references"].array();
  ASSERT_EQ(object->getReferences(nullptr, 0), references.size());
  std::vector<boost::shared_ptr<Object3D>> present(references.size() + 1);
  object->getReferences(present.data(), static_cast<unsigned>(references.size()));
  for (std::size_t i = 0; i < references.size(); ++i) {
    EXPECT_EQ(present[i], named(loaded, references[i])) << "reference " << i;
  }
}

void checkCamera(const Json& expected, const Camera& camera) {
  float parameters[4];
  EXPECT_EQ(camera.getProjection(parameters), expected["projectionType"].int32());
  expectFloats(expected["projection"], parameters, "projection");
}

void checkLight(const Json& expected, const Light& light) {
  const float attenuation[] = {light.getConstantAttenuation(), light.getLinearAttenuation(),
                               light.getQuadraticAttenuation()};
  expectFloats(expected["attenuation"], attenuation, "attenuation");
  EXPECT_EQ(light.getColor(), expected["color"].int32());
  EXPECT_EQ(light.getMode(), expected["mode"].int32());
  EXPECT_EQ(light.getIntensity(), static_cast<float>(expected["intensity"].number()));
  EXPECT_EQ(light.getSpotAngle(), static_cast<float>(expected["spotAngle"].number()));
  EXPECT_EQ(light.getSpotExponent(), static_cast<float>(expected["spotExponent"].number()));
}

void checkMesh(const Loaded& loaded, const Json& expected, const Mesh& mesh) {
  EXPECT_EQ(mesh.getVertexBuffer(), named(loaded, expected["vertexBuffer"]));
  const std::vector<Json>& submeshes = expected["submeshes"].array();
  ASSERT_EQ(mesh.getSubmeshCount(), submeshes.size());
  for (std::size_t i = 0; i < submeshes.size(); ++i) {
    const int index = static_cast<int>(i);
    EXPECT_EQ(mesh.getIndexBuffer(index), named(loaded, submeshes[i]["indexBuffer"]));
    EXPECT_EQ(mesh.getAppearance(index), named(loaded, submeshes[i]["appearance"]));
  }
}

void checkBackground(const Loaded& loaded, const Json& expected, const Background& background) {
  EXPECT_EQ(background.getColor(), expected["backgroundColor"].int32());
  EXPECT_EQ(background.getImage(), named(loaded, expected["backgroundImage"]));
  EXPECT_EQ(background.getImageModeX(), expected["backgroundImageModeX"].int32());
  EXPECT_EQ(background.getImageModeY(), expected["backgroundImageModeY"].int32());
  const float crop[] = {static_cast<float>(background.getCropX()),
                        static_cast<float>(background.getCropY()),
                        static_cast<float>(background.getCropWidth()),
                        static_cast<float>(background.getCropHeight())};
  expectFloats(expected["crop"], crop, "crop");
  EXPECT_EQ(background.isDepthClearEnabled(), expected["depthClearEnabled"].boolean());
  EXPECT_EQ(background.isColorClearEnabled(), expected["colorClearEnabled"].boolean());
}

void checkVertexArray(const Json& expected, const VertexArray& array) {
  EXPECT_EQ(array.getComponentType(), expected["componentSize"].int32());
  EXPECT_EQ(array.getComponentCount(), expected["componentCount"].int32());
  ASSERT_EQ(array.getVertexCount(), expected["vertexCount"].int32());
  const std::size_t count =
      static_cast<std::size_t>(array.getVertexCount() * array.getComponentCount());
  if (array.getComponentType() == 1) {
    std::vector<signed char> values(count);
    array.get(0, array.getVertexCount(), values.data());
    expectArray(expected["values"], values, "values");
  } else {
    std::vector<short> values(count);
    array.get(0, array.getVertexCount(), values.data());
    expectArray(expected["values"], values, "values");
  }
}

void checkVertexBuffer(const Loaded& loaded, const Json& expected, const VertexBuffer& buffer) {
  EXPECT_EQ(buffer.getDefaultColor(), expected["defaultColor"].int32());
  EXPECT_EQ(buffer.getVertexCount(), expected["vertexCount"].int32());
  float scaleBias[4];
  EXPECT_EQ(buffer.getPositions(scaleBias), named(loaded, expected["positions"]));
  EXPECT_EQ(scaleBias[0], static_cast<float>(expected["positionScale"].number()));
  expectFloats(expected["positionBias"], scaleBias + 1, "positionBias");
  EXPECT_EQ(buffer.getNormals(), named(loaded, expected["normals"]));
  EXPECT_EQ(buffer.getColors(), named(loaded, expected["colors"]));
  const std::vector<Json>& texCoords = expected["texCoords"].array();
  for (std::size_t i = 0; i < texCoords.size(); ++i) {
    EXPECT_EQ(buffer.getTexCoords(static_cast<int>(i), scaleBias),
              named(loaded, texCoords[i]["array"]));
    EXPECT_EQ(scaleBias[0], static_cast<float>(texCoords[i]["scale"].number()));
    expectFloats(texCoords[i]["bias"], scaleBias + 1, "bias");
  }
}

void checkStrips(const Json& expected, TriangleStripArray& strips) {
  std::vector<unsigned> lengths;
  std::vector<unsigned> indices;
  for (unsigned i = 0; i < strips.stripCount(); ++i) {
    lengths.push_back(strips.stripLength(i));
    if (strips.isExplicit()) {
      indices.insert(indices.end(), strips.stripIndices(i),
                     strips.stripIndices(i) + strips.stripLength(i));
    }
  }
  expectArray(expected["stripLengths"], lengths, "stripLengths");
  if (expected.has("indices")) {
    expectArray(expected["indices"], indices, "indices");
  }
  ASSERT_EQ(strips.getIndexCount(), expected["indexCount"].int32());
  std::vector<int> triangles(static_cast<std::size_t>(strips.getIndexCount()));
  strips.getIndices(triangles.data());
  expectArray(expected["triangleIndices"], triangles, "triangleIndices");
}

void checkSequence(const Json& expected, const KeyframeSequence& sequence) {
  EXPECT_EQ(sequence.getInterpolationType(), expected["interpolation"].int32());
  EXPECT_EQ(sequence.getRepeatMode(), expected["repeatMode"].int32());
  EXPECT_EQ(sequence.getDuration(), expected["duration"].int32());
  EXPECT_EQ(sequence.getValidRangeFirst(), expected["validRangeFirst"].int32());
  EXPECT_EQ(sequence.getValidRangeLast(), expected["validRangeLast"].int32());
  ASSERT_EQ(sequence.getComponentCount(), expected["componentCount"].int32());
  ASSERT_EQ(sequence.getKeyframeCount(), expected["keyframeCount"].int32());
  std::vector<int> times;
  std::vector<float> values;
  std::vector<float> value(static_cast<std::size_t>(sequence.getComponentCount()));
  for (int i = 0; i < sequence.getKeyframeCount(); ++i) {
    times.push_back(sequence.getKeyframe(i, value.data()));
    values.insert(values.end(), value.begin(), value.end());
  }
  expectArray(expected["times"], times, "times");
  if (expected.has("normalisedValues")) {
    const std::vector<Json>& first = expected["normalisedValues"]["first8"].array();
    for (std::size_t i = 0; i < first.size(); ++i) {
      EXPECT_NEAR(values[i], first[i].number(), 1e-6);
    }
  } else {
    expectArray(expected["values"], values, "values");
  }
}

void checkImage(const Json& expected, const Image2D& image) {
  EXPECT_EQ(image.getFormat(), expected["format"].int32());
  EXPECT_EQ(image.isMutable(), expected["isMutable"].boolean());
  EXPECT_EQ(image.getWidth(), expected["width"].int32());
  EXPECT_EQ(image.getHeight(), expected["height"].int32());
  const std::size_t size =
      static_cast<std::size_t>(image.getWidth() * image.getHeight() * image.getBytesPerPixel());
  expectArray(expected["pixels"],
              std::vector<unsigned char>(image.getPixels(), image.getPixels() + size), "pixels");
}

void checkAppearance(const Loaded& loaded, const Json& expected, const Appearance& appearance) {
  EXPECT_EQ(appearance.getLayer(), expected["layer"].int32());
  EXPECT_EQ(appearance.getCompositingMode(), named(loaded, expected["compositingMode"]));
  EXPECT_EQ(appearance.getFog(), named(loaded, expected["fog"]));
  EXPECT_EQ(appearance.getPolygonMode(), named(loaded, expected["polygonMode"]));
  EXPECT_EQ(appearance.getMaterial(), named(loaded, expected["material"]));
  const std::vector<Json>& textures = expected["textures"].array();
  for (std::size_t i = 0; i < textures.size(); ++i) {
    EXPECT_EQ(appearance.getTexture(static_cast<int>(i)), named(loaded, textures[i]));
  }
}

void checkSkin(const Loaded& loaded, const Json& expected, SkinnedMesh& mesh) {
  EXPECT_EQ(mesh.getSkeleton(), named(loaded, expected["skeleton"]));
}

void checkByClass(const Loaded& loaded, const Json& expected,
                  const boost::shared_ptr<Object3D>& object) {
  checkObject(loaded, expected, object);
  if (const auto transformable = as<Transformable>(object)) {
    checkTransformable(expected, *transformable);
  }
  if (const auto node = as<Node>(object))
    checkNode(loaded, expected, *node);
  if (const auto mesh = as<Mesh>(object))
    checkMesh(loaded, expected, *mesh);
  if (const auto mesh = as<SkinnedMesh>(object))
    checkSkin(loaded, expected, *mesh);
  if (const auto camera = as<Camera>(object))
    checkCamera(expected, *camera);
  if (const auto light = as<Light>(object))
    checkLight(expected, *light);
  if (const auto array = as<VertexArray>(object))
    checkVertexArray(expected, *array);
  if (const auto buffer = as<VertexBuffer>(object))
    checkVertexBuffer(loaded, expected, *buffer);
  if (const auto strips = as<TriangleStripArray>(object))
    checkStrips(expected, *strips);
  if (const auto sequence = as<KeyframeSequence>(object))
    checkSequence(expected, *sequence);
  if (const auto image = as<Image2D>(object))
    checkImage(expected, *image);
  if (const auto appearance = as<Appearance>(object)) {
    checkAppearance(loaded, expected, *appearance);
  }
  if (const auto background = as<Background>(object)) {
    checkBackground(loaded, expected, *background);
  }
  if (const auto world = as<World>(object)) {
    EXPECT_EQ(world->getActiveCamera(), named(loaded, expected["activeCamera"]));
    EXPECT_EQ(world->getBackground(), named(loaded, expected["background"]));
  }
  if (const auto track = as<AnimationTrack>(object)) {
    EXPECT_EQ(track->getKeyframeSequence(), named(loaded, expected["keyframeSequence"]));
    EXPECT_EQ(track->getController(), named(loaded, expected["animationController"]));
    EXPECT_EQ(track->getTargetProperty(), expected["propertyID"].int32());
  }
  if (const auto controller = as<AnimationController>(object)) {
    EXPECT_EQ(controller->getSpeed(), static_cast<float>(expected["speed"].number()));
    EXPECT_EQ(controller->getWeight(), static_cast<float>(expected["weight"].number()));
    EXPECT_EQ(controller->getActiveIntervalStart(), expected["activeIntervalStart"].int32());
    EXPECT_EQ(controller->getActiveIntervalEnd(), expected["activeIntervalEnd"].int32());
    EXPECT_EQ(controller->getRefWorldTime(), expected["referenceWorldTime"].int32());
  }
  if (const auto material = as<Material>(object)) {
    EXPECT_EQ(material->getColor(Material::AMBIENT), expected["ambientColor"].int32());
    EXPECT_EQ(material->getColor(Material::DIFFUSE), expected["diffuseColor"].int32());
    EXPECT_EQ(material->getColor(Material::EMISSIVE), expected["emissiveColor"].int32());
    EXPECT_EQ(material->getColor(Material::SPECULAR), expected["specularColor"].int32());
    EXPECT_EQ(material->getShininess(), static_cast<float>(expected["shininess"].number()));
  }
  if (const auto mode = as<PolygonMode>(object)) {
    EXPECT_EQ(mode->getCulling(), expected["culling"].int32());
    EXPECT_EQ(mode->getShading(), expected["shading"].int32());
    EXPECT_EQ(mode->getWinding(), expected["winding"].int32());
  }
  if (const auto texture = as<Texture2D>(object)) {
    EXPECT_EQ(texture->getImage(), named(loaded, expected["image"]));
    EXPECT_EQ(texture->getBlending(), expected["blending"].int32());
    EXPECT_EQ(texture->getWrappingS(), expected["wrappingS"].int32());
    EXPECT_EQ(texture->getWrappingT(), expected["wrappingT"].int32());
    EXPECT_EQ(texture->getLevelFilter(), expected["levelFilter"].int32());
    EXPECT_EQ(texture->getImageFilter(), expected["imageFilter"].int32());
  }
}

/// The engine's exception as the loader's native translates it.
std::string translated(const std::string& failure) {
  const std::map<std::string, std::string> classes = {
      {"std::invalid_argument: ", "java/lang/NullPointerException: "},
      {"std::runtime_error: ", "java/io/IOException: "}};
  for (const auto& [type, javaClass] : classes) {
    if (failure.rfind(type, 0) == 0) {
      return javaClass + failure.substr(type.size());
    }
  }
  return failure;
}

std::string linesOf(const Json& lines) {
  std::string text;
  for (const Json& line : lines.array()) {
    text += line.text() + "\n";
  }
  return text;
}

void checkFile(const std::string& name, const Json& expected) {
  const Loaded loaded = varnel_test::loadFile(name);
  EXPECT_EQ(loaded.out, linesOf(expected["stdout"]));
  if (expected["outcome"]["kind"].text() == "exception") {
    EXPECT_EQ(translated(loaded.failure),
              expected["outcome"]["java"].text() + ": " + expected["outcome"]["message"].text());
    return;
  }
  ASSERT_EQ(loaded.failure, "");
  const std::vector<Json>& classes = expected["array"].array();
  ASSERT_EQ(loaded.objects.size(), classes.size());
  EXPECT_FALSE(loaded.objects[0]);
  for (std::size_t i = 1; i < classes.size(); ++i) {
    ASSERT_TRUE(loaded.objects[i]);
    EXPECT_EQ(className(loaded.objects[i]), classes[i].text()) << i;
  }
  for (const Json& object : expected["table"].array()) {
    SCOPED_TRACE("object " + std::to_string(object["index"].int32()));
    checkByClass(loaded, object, named(loaded, object["index"]));
  }
}

TEST(ForeignFiles, GiveWhatIsExpected) {
  const char* folder = std::getenv("VARNEL_SAMPLES");
  if (folder == nullptr) {
    GTEST_SKIP() << "VARNEL_SAMPLES is not set";
  }
  const CurrentFolder current(folder);
  const int formerUnits = maxTextureUnits;
  int files = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(".")) {
    if (entry.path().extension() != ".m3g") {
      continue;
    }
    const std::string name = entry.path().filename().string();
    SCOPED_TRACE(name);
    const Json expected =
        Json::parse(varnel_test::readFile(entry.path().stem().string() + ".expected.json"));
    maxTextureUnits = expected["maxTextureUnits"].int32();
    checkFile(name, expected);
    ++files;
  }
  maxTextureUnits = formerUnits;
  EXPECT_GT(files, 0);
}

}  // namespace
}  // namespace varnel_m3g
