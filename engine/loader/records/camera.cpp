// Camera, after the Node section:
//   Byte projectionType
//   48 (generic): 16 Floats, row-major
//   any other: Float fovy, Float aspectRatio, Float near, Float far, dropped unless the type is
//     49 (parallel) or 50 (perspective)

#include "engine/scene/camera.h"

#include <utility>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Camera::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Node::load(stream, table);
  const int type = stream.readByte();
  if (type == GENERIC) {
    stream.readMatrixInto(projectionMatrix);
    for (int row = 1; row < 4; ++row) {
      for (int column = 0; column < row; ++column) {
        std::swap(projectionMatrix[4 * row + column], projectionMatrix[4 * column + row]);
      }
    }
    projectionType = GENERIC;
    return;
  }
  const float fovy = stream.readFloat();
  const float aspectRatio = stream.readFloat();
  const float near = stream.readFloat();
  const float far = stream.readFloat();
  if (type == PARALLEL) {
    setParallel(fovy, aspectRatio, near, far);
  } else if (type == PERSPECTIVE) {
    setPerspective(fovy, aspectRatio, near, far);
  }
}

}  // namespace varnel_m3g
