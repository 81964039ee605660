// Writes the sample scenes into the folder that is its one argument. What each file shows is listed
// in samples/README.md.

#include <cmath>
#include <cstdio>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/image_writer.h"
#include "tests/support/m3g_writer.h"
#include "tools/sample_shapes.h"

using namespace varnel_test;
using namespace varnel_samples;

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr std::uint32_t skyColor = 0xFFA9C3DB;

using Vector = std::vector<float>;

/// The objects of a file in order; each is named by its index in the file.
class Scene {
 public:
  int add(const M3gRecord& record) {
    records.push_back(record);
    return static_cast<int>(records.size()) + 1;
  }

  const std::vector<M3gRecord>& all() const { return records; }

 private:
  std::vector<M3gRecord> records;
};

M3gRecord record(int type) {
  M3gRecord record(type);
  record.object3D();
  return record;
}

/// A node's sections with a place and a turn of so many degrees about an axis.
M3gRecord placed(int type, const Vector& translation, float angle = 0,
                 const Vector& axis = {0, 1, 0}, const std::vector<std::int64_t>& tracks = {},
                 int userID = 0, const Vector& scale = {1, 1, 1}) {
  M3gRecord record(type);
  record.object3D(userID, tracks).transformable(translation, scale, angle, axis).node();
  return record;
}

int addByteArray(Scene& scene, const std::vector<int>& values, int components) {
  M3gRecord array = record(VERTEX_ARRAY);
  array.byte(1).byte(components).byte(0).int16(static_cast<int>(values.size()) / components);
  for (const int value : values) {
    array.byte(value);
  }
  return scene.add(array);
}

/// Values of 16 bits, stored as differences, which pack better.
int addShortArray(Scene& scene, const std::vector<int>& values, int components) {
  M3gRecord array = record(VERTEX_ARRAY);
  array.byte(2).byte(components).byte(1).int16(static_cast<int>(values.size()) / components);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::size_t step = static_cast<std::size_t>(components);
    array.int16(i < step ? values[i] : values[i] - values[i - step]);
  }
  return scene.add(array);
}

int addVertexBuffer(Scene& scene, int positions, float positionScale, int normals, int colors,
                    int texCoords, float texCoordScale) {
  M3gRecord buffer = record(VERTEX_BUFFER);
  buffer.rgba(0xFFFFFFFF).int32(positions).floats({0, 0, 0, positionScale});
  buffer.int32(normals).int32(colors).int32(texCoords != 0 ? 1 : 0);
  if (texCoords != 0) {
    buffer.int32(texCoords).floats({0, 0, 0, texCoordScale});
  }
  return scene.add(buffer);
}

int addStrips(Scene& scene, const std::vector<int>& indices, const std::vector<int>& lengths) {
  return scene.add(record(TRIANGLE_STRIP_ARRAY).byte(130).shortArray(indices).intArray(lengths));
}

struct Geometry {
  int vertices;
  int strips;
};

Geometry addShape(Scene& scene, const Shape& shape) {
  const int positions = addShortArray(scene, shape.positions, 3);
  const int normals = addByteArray(scene, shape.normals, 3);
  const int texCoords = addShortArray(scene, shape.texCoords, 2);
  const int vertices =
      addVertexBuffer(scene, positions, shapeScale, normals, 0, texCoords, shapeScale);
  return {vertices, addStrips(scene, shape.indices, shape.stripLengths)};
}

int addImage(Scene& scene, int format, const Picture& picture) {
  return scene.add(record(IMAGE_2D)
                       .byte(format)
                       .boolean(false)
                       .int32(picture.width)
                       .int32(picture.height)
                       .byteArray("")
                       .byteArray(picture.pixels));
}

/// Repeated, modulating, smooth at every distance.
int addTexture(Scene& scene, int image) {
  M3gRecord texture = record(TEXTURE_2D);
  texture.transformable().int32(image).rgb(0).byte(227).byte(241).byte(241).byte(209).byte(209);
  return scene.add(texture);
}

int addMaterial(Scene& scene, std::uint32_t ambient, std::uint32_t diffuse, std::uint32_t emissive,
                std::uint32_t specular, float shininess) {
  return scene.add(record(MATERIAL)
                       .rgb(ambient)
                       .rgba(0xFF000000 | diffuse)
                       .rgb(emissive)
                       .rgb(specular)
                       .float32(shininess)
                       .boolean(false));
}

struct Look {
  int layer = 0;
  int compositingMode = 0;
  int fog = 0;
  int polygonMode = 0;
  int material = 0;
  int texture = 0;
};

int addAppearance(Scene& scene, const Look& look) {
  M3gRecord appearance = record(APPEARANCE);
  appearance.byte(look.layer).int32(look.compositingMode).int32(look.fog).int32(look.polygonMode);
  appearance.int32(look.material).int32(look.texture != 0 ? 1 : 0);
  if (look.texture != 0) {
    appearance.int32(look.texture);
  }
  return scene.add(appearance);
}

int addMesh(Scene& scene, M3gRecord node, const Geometry& geometry, int appearance) {
  node.int32(geometry.vertices).int32(1).int32(geometry.strips).int32(appearance);
  return scene.add(node);
}

int addGroup(Scene& scene, M3gRecord node, const std::vector<int>& children) {
  return scene.add(node.intArray(children));
}

int addLight(Scene& scene, M3gRecord node, int mode, std::uint32_t color, float intensity,
             const Vector& attenuation = {1, 0, 0}) {
  return scene.add(
      node.floats(attenuation).rgb(color).byte(mode).float32(intensity).float32(45).float32(0));
}

int addCamera(Scene& scene, M3gRecord node, float fovy) {
  return scene.add(node.byte(50).float32(fovy).float32(640.0f / 480.0f).float32(0.5f).float32(80));
}

int addBackground(Scene& scene, std::uint32_t color) {
  M3gRecord background = record(BACKGROUND);
  background.rgba(color).int32(0).byte(32).byte(32).int32(0).int32(0).int32(0).int32(0);
  return scene.add(background.boolean(true).boolean(true));
}

int addWorld(Scene& scene, const std::vector<int>& children, int camera, int background) {
  M3gRecord world(WORLD);
  world.plainNode().intArray(children).int32(camera).int32(background);
  return scene.add(world);
}

int addController(Scene& scene) {
  return scene.add(
      record(ANIMATION_CONTROLLER).float32(1).float32(1).int32(0).int32(0).float32(0).int32(0));
}

/// A track that plays the values at equal distances of time, in `duration` milliseconds, for ever.
int addTrack(Scene& scene, int controller, int property, int interpolation, int duration,
             const std::vector<Vector>& values) {
  const int count = static_cast<int>(values.size());
  M3gRecord sequence = record(KEYFRAME_SEQUENCE);
  sequence.byte(interpolation).byte(193).byte(0).int32(duration).int32(0).int32(count - 1);
  sequence.int32(static_cast<int>(values[0].size())).int32(count);
  for (int i = 0; i < count; ++i) {
    sequence.int32(static_cast<std::int64_t>(duration) * i / count);
    sequence.floats(values[static_cast<std::size_t>(i)]);
  }
  const int sequenceIndex = scene.add(sequence);
  return scene.add(record(ANIMATION_TRACK).int32(sequenceIndex).int32(controller).int32(property));
}

constexpr int linear = 176;
constexpr int slerp = 177;
constexpr int orientation = 268;
constexpr int scaleProperty = 270;
constexpr int translationProperty = 275;

/// Quaternions of whole turns about an axis of unit length.
std::vector<Vector> turns(const Vector& axis, int count) {
  std::vector<Vector> values;
  for (int i = 0; i < count; ++i) {
    const double half = pi * i / count;
    const float s = static_cast<float>(std::sin(half));
    values.push_back({axis[0] * s, axis[1] * s, axis[2] * s, static_cast<float>(std::cos(half))});
  }
  return values;
}

/// The axis and angle of a light whose rays come from that direction.
M3gRecord sunFrom(float x, float y, float z) {
  const float length = std::sqrt(x * x + y * y + z * z);
  const float angle = static_cast<float>(std::acos(z / length) * 180 / pi);
  return placed(LIGHT, {0, 0, 0}, angle, {-y, x, 0});
}

/// A flat shadow on the ground.
Geometry addShadow(Scene& scene) {
  const int positions = addByteArray(scene, {-1, 0, -1, -1, 0, 1, 1, 0, -1, 1, 0, 1}, 3);
  const int texCoords = addByteArray(scene, {0, 0, 0, 1, 1, 0, 1, 1}, 2);
  const int vertices = addVertexBuffer(scene, positions, 1, 0, 0, texCoords, 1);
  return {vertices, scene.add(record(TRIANGLE_STRIP_ARRAY).byte(1).byte(0).intArray({4}))};
}

/// The ground: squares of one unit with a texture repeated every four.
Geometry addGround(Scene& scene) {
  std::vector<int> positions;
  std::vector<int> normals;
  std::vector<int> texCoords;
  std::vector<int> indices;
  std::vector<int> lengths;
  constexpr int west = -24, east = 24, north = -46, south = 12;
  constexpr int columns = east - west + 1;
  for (int z = north; z <= south; ++z) {
    for (int x = west; x <= east; ++x) {
      positions.insert(positions.end(), {x, 0, z});
      normals.insert(normals.end(), {0, 127, 0});
      texCoords.insert(texCoords.end(), {x, z});
    }
  }
  for (int row = 0; row < south - north; ++row) {
    for (int column = 0; column < columns; ++column) {
      indices.push_back(row * columns + column);
      indices.push_back((row + 1) * columns + column);
    }
    lengths.push_back(2 * columns);
  }
  const int positionArray = addByteArray(scene, positions, 3);
  const int normalArray = addByteArray(scene, normals, 3);
  const int texCoordArray = addByteArray(scene, texCoords, 2);
  const int vertices =
      addVertexBuffer(scene, positionArray, 1, normalArray, 0, texCoordArray, 0.25f);
  return {vertices, addStrips(scene, indices, lengths)};
}

/// The showpiece: a turning ring, a bouncing ball and a circling lamp before columns in the mist.
Scene showpiece() {
  Scene scene;
  const int controller = addController(scene);
  const int background = addBackground(scene, skyColor);
  const int fog = scene.add(record(FOG).rgb(skyColor & 0xFFFFFF).byte(81).float32(15).float32(46));
  const int smooth = scene.add(record(POLYGON_MODE)
                                   .byte(160)
                                   .byte(165)
                                   .byte(168)
                                   .boolean(false)
                                   .boolean(false)
                                   .boolean(true));

  const int tilesTexture = addTexture(scene, addImage(scene, 99, tiles(64)));
  const int stone = addMaterial(scene, 0xB0B0B0, 0xF0F0F0, 0, 0x101010, 8);
  Look groundLook;
  groundLook.fog = fog;
  groundLook.polygonMode = smooth;
  groundLook.material = stone;
  groundLook.texture = tilesTexture;
  const int ground =
      addMesh(scene, placed(MESH, {0, 0, 0}), addGround(scene), addAppearance(scene, groundLook));

  const Geometry columnGeometry = addShape(scene, column(0.62f, 6.5f, 24, 6));
  Look columnLook;
  columnLook.fog = fog;
  columnLook.polygonMode = smooth;
  columnLook.material = addMaterial(scene, 0x909090, 0xFFFFFF, 0, 0x202020, 12);
  columnLook.texture = addTexture(scene, addImage(scene, 99, flutes(64)));
  const int columnAppearance = addAppearance(scene, columnLook);
  std::vector<int> columns;
  for (int row = 0; row < 7; ++row) {
    for (const float side : {-1.0f, 1.0f}) {
      columns.push_back(addMesh(scene, placed(MESH, {side * 6.5f, 0, -1.5f - 6.0f * row}),
                                columnGeometry, columnAppearance));
    }
  }
  const int columnGroup = addGroup(scene, placed(GROUP, {0, 0, 0}), columns);

  // The ring leans forward and turns about its own axis.
  Look ringLook;
  ringLook.polygonMode = smooth;
  ringLook.material = addMaterial(scene, 0x909090, 0xFFFFFF, 0, 0xC0C0C0, 48);
  ringLook.texture = addTexture(scene, addImage(scene, 99, bands(64)));
  const int spin = addTrack(scene, controller, orientation, slerp, 9000, turns({0, 1, 0}, 24));
  const int ring =
      addMesh(scene, placed(MESH, {0, 0, 0}, 0, {0, 1, 0}, {spin}, 101),
              addShape(scene, torus(1.75f, 0.72f, 56, 28, 4)), addAppearance(scene, ringLook));
  const int tilt = addTrack(scene, controller, orientation, slerp, 13000, turns({1, 0, 0}, 24));
  const int ringGroup =
      addGroup(scene, placed(GROUP, {-2.0f, 3.1f, 0}, 0, {1, 0, 0}, {tilt}, 100), {ring});

  // The ball bounces and rolls; its shadow shrinks as it rises.
  std::vector<Vector> bounce;
  std::vector<Vector> shadowScale;
  for (int i = 0; i < 40; ++i) {
    const double phase = i / 40.0;
    const double height = 4 * phase * (1 - phase) * 2.6;
    const float size = static_cast<float>(1.45 - 0.22 * height);
    bounce.push_back({3.3f, static_cast<float>(1.1 + height), 2.0f});
    shadowScale.push_back({size, 1, size});
  }
  const int bounceTrack = addTrack(scene, controller, translationProperty, linear, 1700, bounce);
  const int rollTrack =
      addTrack(scene, controller, orientation, slerp, 5000, turns({0.6f, 0.8f, 0}, 24));
  Look ballLook;
  ballLook.polygonMode = smooth;
  ballLook.material = addMaterial(scene, 0x909090, 0xFFFFFF, 0, 0x808080, 32);
  ballLook.texture = addTexture(scene, addImage(scene, 99, beachBall(128, 64)));
  const int ball =
      addMesh(scene, placed(MESH, {3.3f, 1.1f, 2.0f}, 0, {0, 1, 0}, {bounceTrack, rollTrack}, 102),
              addShape(scene, sphere(1.1f, 36, 20)), addAppearance(scene, ballLook));

  // Shadows are blended onto the ground, unlit.
  const Geometry shadow = addShadow(scene);
  const int blended = scene.add(record(COMPOSITING_MODE)
                                    .boolean(true)
                                    .boolean(false)
                                    .boolean(true)
                                    .boolean(true)
                                    .byte(64)
                                    .byte(0)
                                    .float32(-1)
                                    .float32(-2));
  Look shadowLook;
  shadowLook.compositingMode = blended;
  shadowLook.texture = addTexture(scene, addImage(scene, 100, blob(64)));
  const int shadowAppearance = addAppearance(scene, shadowLook);
  const int ringShadow =
      addMesh(scene, placed(MESH, {-2.0f, 0.02f, -0.6f}, 0, {0, 1, 0}, {}, 0, {3.4f, 1, 3.0f}),
              shadow, shadowAppearance);
  const int shrink = addTrack(scene, controller, scaleProperty, linear, 1700, shadowScale);
  const int ballShadow = addMesh(scene, placed(MESH, {3.3f, 0.02f, 1.8f}, 0, {0, 1, 0}, {shrink}),
                                 shadow, shadowAppearance);

  // A lamp circles: an omni light inside a small glowing ball.
  std::vector<Vector> circle;
  for (int i = 0; i < 48; ++i) {
    const double angle = 2 * pi * i / 48;
    circle.push_back({static_cast<float>(0.4 + 4.4 * std::sin(angle)),
                      static_cast<float>(1.5 + 0.5 * std::sin(2 * angle)),
                      static_cast<float>(0.5 + 4.2 * std::cos(angle))});
  }
  const int circleTrack = addTrack(scene, controller, translationProperty, linear, 7000, circle);
  Look lampLook;
  lampLook.polygonMode = smooth;
  lampLook.material = addMaterial(scene, 0, 0x402010, 0xFFD890, 0, 0);
  const int lampBall =
      addMesh(scene, placed(MESH, {0, 0, 0}), addShape(scene, sphere(0.16f, 16, 10)),
              addAppearance(scene, lampLook));
  const int lampLight =
      addLight(scene, placed(LIGHT, {0, 0, 0}), 130, 0xFFA040, 1.3f, {1, 0.05f, 0.09f});
  const int lamp = addGroup(scene, placed(GROUP, circle.front(), 0, {0, 1, 0}, {circleTrack}, 103),
                            {lampBall, lampLight});

  const int sun = addLight(scene, sunFrom(0.45f, 0.8f, 0.55f), 129, 0xFFF4E0, 0.8f);
  const int sky = addLight(scene, placed(LIGHT, {0, 0, 0}), 128, 0x9FB4CC, 0.55f);
  const int camera = addCamera(scene, placed(CAMERA, {0.6f, 4.4f, 12.5f}, -9.5f, {1, 0, 0}), 45);
  addWorld(scene,
           {ground, columnGroup, ringGroup, ball, ringShadow, ballShadow, lamp, sun, sky, camera},
           camera, background);
  return scene;
}

/// A turning cube with an embedded texture and two lights.
Scene cubeScene(int image, Scene scene) {
  const int controller = addController(scene);
  const int background = addBackground(scene, 0xFF20304A);
  Look look;
  look.material = addMaterial(scene, 0x909090, 0xFFFFFF, 0, 0x606060, 20);
  look.texture = addTexture(scene, image);
  const int spin =
      addTrack(scene, controller, orientation, slerp, 8000, turns({0.36f, 0.8f, 0.48f}, 24));
  const int mesh = addMesh(scene, placed(MESH, {0, 0, 0}, 30, {0.36f, 0.8f, 0.48f}, {spin}, 1),
                           addShape(scene, cube(1)), addAppearance(scene, look));
  const int sun = addLight(scene, sunFrom(0.4f, 0.6f, 0.7f), 129, 0xFFFFFF, 1);
  const int sky = addLight(scene, placed(LIGHT, {0, 0, 0}), 128, 0x8090A0, 0.7f);
  const int camera = addCamera(scene, placed(CAMERA, {0, 0, 5}), 45);
  addWorld(scene, {mesh, sun, sky, camera}, camera, background);
  return scene;
}

/// One unlit triangle in three colours, seen by a parallel camera.
Scene triangle() {
  Scene scene;
  const int positions = addByteArray(scene, {-1, -1, 0, 1, -1, 0, 0, 1, 0}, 3);
  const int colors = addByteArray(scene, {255, 0, 0, 0, 255, 0, 0, 0, 255}, 3);
  const int vertices = addVertexBuffer(scene, positions, 1, 0, colors, 0, 0);
  const int strip = scene.add(record(TRIANGLE_STRIP_ARRAY).byte(0).int32(0).intArray({3}));
  const int appearance = addAppearance(scene, {});
  const int mesh = addMesh(scene, placed(MESH, {0, 0, 0}), {vertices, strip}, appearance);
  M3gRecord parallel = placed(CAMERA, {0, 0, 2});
  parallel.byte(49).float32(3).float32(640.0f / 480.0f).float32(1).float32(10);
  const int camera = scene.add(parallel);
  addWorld(scene, {mesh, camera}, camera, 0);
  return scene;
}

/// A skinned flag whose upper edge follows a bone that grows and shrinks, and a morphing one, which
/// shows its base shape.
Scene deformed() {
  Scene scene;
  const int positions = addByteArray(scene, {-4, -4, 0, 4, -4, 0, -4, 4, 0, 4, 4, 0}, 3);
  const int target = addByteArray(scene, {-2, -8, 0, 2, -8, 0, -2, 8, 0, 2, 8, 0}, 3);
  const int colors = addByteArray(scene, {255, 0, 0, 255, 255, 0, 0, 0, 255, 0, 255, 0}, 3);
  const int vertices = addVertexBuffer(scene, positions, 0.125f, 0, colors, 0, 0);
  const int targetVertices = addVertexBuffer(scene, target, 0.125f, 0, 0, 0, 0);
  const int strip = scene.add(record(TRIANGLE_STRIP_ARRAY).byte(0).int32(0).intArray({4}));
  const int appearance = addAppearance(scene, {});
  const auto section = [&](int type, float x) {
    M3gRecord mesh = placed(type, {x, 0, 0});
    return mesh.int32(vertices).int32(1).int32(strip).int32(appearance);
  };
  const int growth = addTrack(scene, addController(scene), scaleProperty, linear, 2000,
                              {{1, 1, 1}, {2, 2, 1}, {1, 1, 1}, {0.5f, 0.5f, 1}});
  const int bone = addGroup(scene, placed(GROUP, {0, 0, 0}, 0, {0, 1, 0}, {growth}, 1), {});
  const int skeleton = addGroup(scene, placed(GROUP, {0, 0, 0}), {bone});
  M3gRecord skinned = section(SKINNED_MESH, -1);
  const int skinnedMesh =
      scene.add(skinned.int32(skeleton).int32(1).int32(bone).int32(2).int32(2).int32(1));
  M3gRecord morphing = section(MORPHING_MESH, 1);
  const int morphingMesh = scene.add(morphing.int32(1).int32(targetVertices).float32(0.5f));
  M3gRecord parallel = placed(CAMERA, {0, 0, 2});
  parallel.byte(49).float32(3).float32(640.0f / 480.0f).float32(1).float32(10);
  const int camera = scene.add(parallel);
  addWorld(scene, {skinnedMesh, morphingMesh, camera}, camera, 0);
  return scene;
}

M3gFile file() {
  M3gFile file;
  file.authoringField = "varneljni samples";
  return file;
}

void write(const std::string& folder, const std::string& name, const std::string& bytes) {
  writeFile(folder + "/" + name, bytes);
  std::printf("%-16s %7zu bytes\n", name.c_str(), bytes.size());
}

void writeSamples(const std::string& folder) {
  write(folder, "showpiece.m3g", file().compressed(showpiece().all()).bytes());

  Scene embedded;
  const int embeddedImage = addImage(embedded, 99, bands(32));
  write(folder, "cube.m3g", file().stored(cubeScene(embeddedImage, embedded).all()).bytes());

  // The image in a section of its own, the scene in two, zlib and stored in turn.
  std::vector<M3gRecord> all = cubeScene(embeddedImage, embedded).all();
  const std::size_t half = all.size() / 2;
  M3gFile sections = file();
  sections.compressed({all.begin(), all.begin() + 1});
  sections.stored({all.begin() + 1, all.begin() + static_cast<std::ptrdiff_t>(half)});
  sections.compressed({all.begin() + static_cast<std::ptrdiff_t>(half), all.end()});
  write(folder, "sections.m3g", sections.bytes());

  const Picture tilesPicture = tiles(32);
  PngImage png;
  png.width = tilesPicture.width;
  png.height = tilesPicture.height;
  png.rows = tilesPicture.pixels;
  write(folder, "tiles.png", pngFile(png));
  Scene external;
  const int externalImage = external.add(M3gRecord(EXTERNAL_REFERENCE).text("tiles.png"));
  M3gFile externalFile = file();
  externalFile.hasExternalReferences = true;
  write(folder, "external.m3g",
        externalFile.stored(cubeScene(externalImage, external).all()).bytes());

  write(folder, "deformed.m3g", file().stored(deformed().all()).bytes());
  write(folder, "triangle.m3g", file().stored(triangle().all()).bytes());
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: varnel-make-samples FOLDER\n");
    return 2;
  }
  try {
    writeSamples(arguments[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "varnel-make-samples: %s\n", error.what());
    return 1;
  }
  return 0;
}
