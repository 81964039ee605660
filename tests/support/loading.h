#ifndef VARNEL_TESTS_SUPPORT_LOADING_H
#define VARNEL_TESTS_SUPPORT_LOADING_H

#include <boost/pointer_cast.hpp>
#include <string>
#include <vector>

#include "engine/object/object3d.h"
#include "engine/object/object_table.h"
#include "tests/support/m3g_writer.h"

namespace varnel_test {

/// What a load gave: its objects, its failure, what it wrote. Images are released with it, which
/// their textures would keep alive.
class Loaded {
 public:
  Loaded() = default;
  Loaded(const Loaded&) = delete;
  Loaded& operator=(const Loaded&) = delete;
  Loaded(Loaded&&) = default;
  ~Loaded();

  /// The object of that index in the file, 2 for the first; empty if it is not a T.
  template <class T>
  boost::shared_ptr<T> at(std::size_t index) const {
    return boost::dynamic_pointer_cast<T>(objects.at(index - 1));
  }

  varnel_m3g::ObjectTable objects;
  std::string failure;  // "std::runtime_error: text", empty when there was none
  std::string out;      // standard output
  std::string err;      // standard error stream
};

/// Loads a file by its name.
Loaded loadFile(const std::string& name);
/// Loads an .m3g file of these bytes.
Loaded loadBytes(const std::string& bytes);
/// Loads an .m3g file with one stored section of these records.
Loaded loadRecords(const std::vector<M3gRecord>& records);

// Records that are valid by themselves, for others to refer to.
M3gRecord anyFog();
M3gRecord anyGroup();
M3gRecord anyCamera();
M3gRecord anyLight();
M3gRecord anyBackground();
M3gRecord anyMaterial();
M3gRecord anyPolygonMode();
M3gRecord anyCompositingMode();
M3gRecord anyAppearance();
/// An RGB image of 2 by 2 pixels.
M3gRecord anyImage();
M3gRecord anyTexture(std::int64_t image);
/// Bytes, three components, `vertices` vertices.
M3gRecord anyVertexArray(int vertices = 3);
M3gRecord anyVertexBuffer(std::int64_t positions);
M3gRecord anyStrips();
M3gRecord anyMesh(std::int64_t vertexBuffer, std::int64_t strips, std::int64_t appearance);
/// One keyframe of `components` zeros, linear.
M3gRecord anySequence(int components = 3);
M3gRecord anyController();
M3gRecord anyTrack(std::int64_t sequence, std::int64_t controller, int property = 275);

}  // namespace varnel_test

#endif
