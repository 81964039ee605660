// Writes the seed inputs of the fuzz targets into the folder that is its one argument.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "tests/support/image_writer.h"
#include "tests/support/loading.h"
#include "tests/support/m3g_writer.h"

using namespace varnel_test;

namespace {

M3gRecord track(int userID) {
  M3gRecord record(ANIMATION_TRACK);
  return record.object3D(userID, {}, {{7, "value"}}).int32(2).int32(3).int32(275);
}

/// One object of every class, each referring to those before it.
std::vector<M3gRecord> everything() {
  M3gRecord aligned(GROUP);
  aligned.object3D(1, {4}).transformable({1, 2, 3}, {1, 1, 1}, 45, {0, 1, 0});
  aligned.boolean(true).boolean(false).byte(128).int32(-1);
  aligned.boolean(true).byte(4).byte(3).int32(0).int32(0).int32(0);
  M3gRecord appearance(APPEARANCE);
  appearance.object3D().byte(1).int32(7).int32(5).int32(8).int32(6).int32(1).int32(10);
  M3gRecord buffer(VERTEX_BUFFER);
  buffer.object3D().rgba(0xFF00FF00).int32(12).floats({0, 0, 0, 1}).int32(12).int32(12);
  buffer.int32(1).int32(12).floats({0, 0, 0, 1});
  M3gRecord background(BACKGROUND);
  background.object3D().rgba(0xFF000000).int32(9).byte(32).byte(33);
  background.int32(0).int32(0).int32(2).int32(2).boolean(true).boolean(true);
  M3gRecord world(WORLD);
  world.plainNode().intArray({15, 16, 17, 18}).int32(16).int32(19);
  M3gRecord morphing(MORPHING_MESH);
  morphing.plainNode().int32(13).int32(1).int32(14).int32(11).int32(1).int32(13).float32(0.5f);
  M3gRecord skinned(SKINNED_MESH);
  skinned.plainNode().int32(13).int32(1).int32(14).int32(11).int32(22).int32(1);
  skinned.int32(22).int32(0).int32(3).int32(1);
  M3gRecord sprite(SPRITE_3D);
  sprite.plainNode().int32(9).int32(11).boolean(true).int32(0).int32(0).int32(1).int32(1);
  return {anySequence(),
          anyController(),
          track(5),
          anyFog(),
          anyMaterial(),
          anyCompositingMode(),
          anyPolygonMode(),
          anyImage(),
          anyTexture(9),
          appearance,
          anyVertexArray(),
          buffer,
          anyStrips(),
          anyMesh(13, 14, 11),
          anyCamera(),
          anyLight(),
          aligned,
          background,
          world,
          morphing,
          anyGroup(),
          skinned,
          sprite};
}

M3gRecord deltaArray() {
  M3gRecord record(VERTEX_ARRAY);
  record.object3D().byte(2).byte(3).byte(1).int16(2);
  return record.int16(1).int16(2).int16(3).int16(-1).int16(-1).int16(-1);
}

M3gRecord sequenceOf(int encoding) {
  M3gRecord record(KEYFRAME_SEQUENCE);
  record.object3D().byte(177).byte(193).byte(encoding).int32(100).int32(0).int32(1);
  record.int32(4).int32(2).floats({0, 0, 0, 0}).floats({1, 1, 1, 1});
  for (const int time : {0, 50}) {
    record.int32(time);
    for (int i = 0; i < 4; ++i) {
      encoding == 1 ? record.byte(60 * i) : record.int16(9000 * i);
    }
  }
  return record;
}

M3gRecord paletteImage() {
  M3gRecord record(IMAGE_2D);
  record.object3D().byte(100).boolean(false).int32(2).int32(2);
  return record.byteArray("RGBArgba").byteArray(std::string("\0\1\1\0", 4));
}

M3gRecord strips(int encoding) {
  M3gRecord record(TRIANGLE_STRIP_ARRAY);
  record.object3D().byte(encoding);
  if (encoding == 128) {
    record.intArray({0, 1, 2, 3});
  } else if (encoding == 129) {
    record.byteArray(std::string("\0\1\2\3", 4));
  } else {
    record.shortArray({0, 1, 2, 3});
  }
  return record.intArray({4});
}

void writeM3gSeeds(const std::string& folder) {
  const std::vector<M3gRecord> all = everything();
  const std::vector<M3gRecord> forms = {deltaArray(), sequenceOf(1), sequenceOf(2), paletteImage(),
                                        strips(128),  strips(129),   strips(130)};
  writeFile(folder + "/header", M3gFile().bytes());
  writeFile(folder + "/everything", M3gFile().stored(all).bytes());
  writeFile(folder + "/everything-zlib", M3gFile().compressed(all).bytes());
  writeFile(folder + "/forms", M3gFile().stored(forms).bytes());
  writeFile(folder + "/sections", M3gFile().stored({anyFog()}).compressed(forms).bytes());
  writeFile(folder + "/external",
            M3gFile().stored({M3gRecord(EXTERNAL_REFERENCE).text("none.png")}).bytes());
  // The table's size as a loosely tested index.
  writeFile(folder + "/index-at-size", M3gFile().stored({anyTexture(2)}).bytes());
}

void writePngSeeds(const std::string& folder) {
  const struct {
    const char* name;
    int colorType;
    int bitDepth;
    bool interlaced;
    std::size_t rowBytes;
    std::string transparency;
  } kinds[] = {{"grey1", 0, 1, false, 1, ""},
               {"grey16-transparent", 0, 16, true, 8, std::string("\0\0", 2)},
               {"rgb", 2, 8, false, 12, ""},
               {"rgb-transparent", 2, 8, true, 12, std::string(6, '\0')},
               {"palette4", 3, 4, true, 2, "\x80"},
               {"grey-alpha", 4, 8, false, 8, ""},
               {"rgba16", 6, 16, true, 32, ""}};
  for (const auto& kind : kinds) {
    PngImage image;
    image.width = 4;
    image.height = 4;
    image.colorType = kind.colorType;
    image.bitDepth = kind.bitDepth;
    image.interlaced = kind.interlaced;
    image.rows = std::string(4 * kind.rowBytes, '\x12');
    image.transparency = kind.transparency;
    if (kind.colorType == 3) {
      image.palette = std::string(48, 'p');
    }
    writeFile(folder + "/" + kind.name, pngFile(image));
  }
}

void writeJpegSeeds(const std::string& folder) {
  for (const int components : {1, 3, 4}) {
    for (const bool progressive : {false, true}) {
      JpegImage image;
      image.width = 17;
      image.height = 9;
      image.components = components;
      image.progressive = progressive;
      image.quality = 50;
      image.subsamplingX = image.subsamplingY = components == 3 ? 2 : 1;
      for (int i = 0; i < 17 * 9 * components; ++i) {
        image.pixels += static_cast<char>(i * 7);
      }
      writeFile(folder + "/" + std::to_string(components) + (progressive ? "-progressive" : ""),
                jpegFile(image));
    }
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: fuzz_make_seeds FOLDER\n");
    return 2;
  }
  try {
    const std::string folder = arguments[1];
    for (const char* kind : {"loader", "png", "jpeg"}) {
      std::filesystem::create_directories(folder + "/" + kind);
    }
    writeM3gSeeds(folder + "/loader");
    writePngSeeds(folder + "/png");
    writeJpegSeeds(folder + "/jpeg");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "fuzz_make_seeds: %s\n", error.what());
    return 1;
  }
  return 0;
}
