// VertexBuffer, after the Object3D section:
//   RGBA defaultColor
//   Index positions, 3 Floats positionBias, Float positionScale
//   Index normals, Index colors
//   Int32 texcoordArrayCount, then for each: Index array, 3 Floats bias, Float scale

#include "engine/geometry/vertex_buffer.h"

#include <array>

#include "engine/geometry/vertex_array.h"
#include "engine/loader/records/reference.h"

namespace varnel_m3g {
namespace {

boost::shared_ptr<VertexArray> readArray(M3gObjectInputStream& stream, const ObjectTable& table,
                                         const char* badIndex, const char* badTarget) {
  return readReference<VertexArray>(stream, table, IndexLimit::BELOW_SIZE, IndexZero::NO_OBJECT,
                                    badIndex, badTarget);
}

}  // namespace

void VertexBuffer::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setDefaultColor(static_cast<int>(stream.readRGBA()));

  const boost::shared_ptr<VertexArray> newPositions =
      readArray(stream, table, "VertexBuffer load .. Invalid positions index",
                "VertexBuffer load .. Invalid positions target");
  const std::array<float, 3> bias = stream.readVector3();
  const float scale = stream.readFloat();
  setPositions(newPositions, scale, bias.data());

  setNormals(readArray(stream, table, "VertexBuffer load .. Invalid normals index",
                       "VertexBuffer load .. Invalid normals target"));
  setColors(readArray(stream, table, "VertexBuffer load .. Invalid colors index",
                      "VertexBuffer load .. Invalid colors target"));

  const std::uint32_t texCoordArrayCount = static_cast<std::uint32_t>(stream.readInt32());
  for (std::uint32_t i = 0; i < texCoordArrayCount; ++i) {
    const boost::shared_ptr<VertexArray> texCoords =
        readArray(stream, table, "VertexBuffer load .. Invalid textures index",
                  "VertexBuffer load .. Invalid textures target");
    const std::array<float, 3> texCoordBias = stream.readVector3();
    const float texCoordScale = stream.readFloat();
    setTexCoords(static_cast<int>(i), texCoords, texCoordScale, texCoordBias.data());
  }
}

}  // namespace varnel_m3g
