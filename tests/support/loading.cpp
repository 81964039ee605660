#include "tests/support/loading.h"

#include <gtest/gtest.h>

#include <iostream>
#include <stdexcept>

#include "engine/loader/loader.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"
#include "tests/support/temporary_folder.h"

namespace varnel_test {

using varnel_m3g::Image2D;
using varnel_m3g::Loader;

Loaded::~Loaded() {
  for (const boost::shared_ptr<varnel_m3g::Object3D>& object : objects) {
    const boost::shared_ptr<Image2D> image = boost::dynamic_pointer_cast<Image2D>(object);
    if (image && image->getTexture() != nullptr) {
      image->getTexture()->releaseImage();
    }
  }
}

Loaded loadFile(const std::string& name) {
  Loaded loaded;
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  try {
    Loader::load(name.c_str(), loaded.objects);
  } catch (const std::invalid_argument& error) {
    loaded.failure = std::string("std::invalid_argument: ") + error.what();
  } catch (const std::out_of_range& error) {
    loaded.failure = std::string("std::out_of_range: ") + error.what();
  } catch (const std::logic_error& error) {
    loaded.failure = std::string("std::logic_error: ") + error.what();
  } catch (const std::runtime_error& error) {
    loaded.failure = std::string("std::runtime_error: ") + error.what();
  } catch (const std::exception& error) {
    loaded.failure = std::string("std::exception: ") + error.what();
  }
  std::cout.flush();
  std::cerr.flush();
  loaded.err = testing::internal::GetCapturedStderr();
  loaded.out = testing::internal::GetCapturedStdout();
  return loaded;
}

Loaded loadBytes(const std::string& bytes) {
  const TemporaryFolder folder;
  return loadFile(folder.write("file.m3g", bytes));
}

Loaded loadRecords(const std::vector<M3gRecord>& records) {
  return loadBytes(M3gFile().stored(records).bytes());
}

M3gRecord anyFog() {
  return M3gRecord(FOG).object3D().rgb(0x102030).byte(80).float32(0.5f);
}

M3gRecord anyGroup() {
  return M3gRecord(GROUP).plainNode().int32(0);
}

M3gRecord anyCamera() {
  return M3gRecord(CAMERA).plainNode().byte(50).floats({60, 1, 1, 100});
}

M3gRecord anyLight() {
  return M3gRecord(LIGHT).plainNode().floats({1, 0, 0}).rgb(0xFFFFFF).byte(129).floats({1, 45, 0});
}

M3gRecord anyBackground() {
  M3gRecord record(BACKGROUND);
  record.object3D().rgba(0).int32(0).byte(32).byte(32);
  return record.int32(0).int32(0).int32(0).int32(0).boolean(true).boolean(true);
}

M3gRecord anyMaterial() {
  M3gRecord record(MATERIAL);
  return record.object3D().rgb(0).rgba(0).rgb(0).rgb(0).float32(0).boolean(false);
}

M3gRecord anyPolygonMode() {
  M3gRecord record(POLYGON_MODE);
  record.object3D().byte(160).byte(165).byte(168);
  return record.boolean(false).boolean(false).boolean(false);
}

M3gRecord anyCompositingMode() {
  M3gRecord record(COMPOSITING_MODE);
  record.object3D().boolean(true).boolean(true).boolean(true).boolean(true);
  return record.byte(68).byte(0).float32(0).float32(0);
}

M3gRecord anyAppearance() {
  return M3gRecord(APPEARANCE).object3D().byte(0).int32(0).int32(0).int32(0).int32(0).int32(0);
}

M3gRecord anyImage() {
  M3gRecord record(IMAGE_2D);
  record.object3D().byte(99).boolean(false).int32(2).int32(2);
  return record.byteArray("").byteArray("abcdefghijkl");
}

M3gRecord anyTexture(std::int64_t image) {
  M3gRecord record(TEXTURE_2D);
  record.object3D().transformable().int32(image);
  return record.rgb(0).byte(227).byte(241).byte(241).byte(208).byte(210);
}

M3gRecord anyVertexArray(int vertices) {
  M3gRecord record(VERTEX_ARRAY);
  record.object3D().byte(1).byte(3).byte(0).int16(vertices);
  return record.raw(std::string(static_cast<std::size_t>(3 * vertices), '\1'));
}

M3gRecord anyVertexBuffer(std::int64_t positions) {
  M3gRecord record(VERTEX_BUFFER);
  record.object3D().rgba(0xFFFFFFFF).int32(positions).floats({0, 0, 0, 1});
  return record.int32(0).int32(0).int32(0);
}

M3gRecord anyStrips() {
  return M3gRecord(TRIANGLE_STRIP_ARRAY).object3D().byte(1).byte(0).intArray({3});
}

M3gRecord anyMesh(std::int64_t vertexBuffer, std::int64_t strips, std::int64_t appearance) {
  return M3gRecord(MESH).plainNode().int32(vertexBuffer).int32(1).int32(strips).int32(appearance);
}

M3gRecord anySequence(int components) {
  M3gRecord record(KEYFRAME_SEQUENCE);
  record.object3D().byte(176).byte(192).byte(0);
  record.int32(0).int32(0).int32(0).int32(components).int32(1).int32(0);
  return record.floats(std::vector<float>(static_cast<std::size_t>(components), 0.0f));
}

M3gRecord anyController() {
  M3gRecord record(ANIMATION_CONTROLLER);
  return record.object3D().float32(1).float32(1).int32(0).int32(0).float32(0).int32(0);
}

M3gRecord anyTrack(std::int64_t sequence, std::int64_t controller, int property) {
  return M3gRecord(ANIMATION_TRACK).object3D().int32(sequence).int32(controller).int32(property);
}

}  // namespace varnel_test
