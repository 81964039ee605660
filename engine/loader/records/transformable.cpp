// Transformable section, after the Object3D section:
//   Boolean hasComponentTransform; if set: Vector3 translation, Vector3 scale, Float angle in
//     degrees, Vector3 axis
//   Boolean hasGeneralTransform; if set: Matrix, row-major

#include "engine/math/transformable.h"

#include <array>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void Transformable::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  setIdentityState();
  if (stream.readBoolean()) {
    const std::array<float, 3> newTranslation = stream.readVector3();
    const std::array<float, 3> newScale = stream.readVector3();
    const float angle = stream.readFloat();
    const std::array<float, 3> axis = stream.readVector3();
    setTranslation(newTranslation[0], newTranslation[1], newTranslation[2]);
    setScale(newScale[0], newScale[1], newScale[2]);
    setOrientation(angle, axis[0], axis[1], axis[2]);
  }
  if (stream.readBoolean()) {
    Transform transform;
    transform.set(stream.readMatrix().data());
    setTransform(transform);
  }
}

}  // namespace varnel_m3g
