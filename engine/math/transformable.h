#ifndef VARNEL_ENGINE_MATH_TRANSFORMABLE_H
#define VARNEL_ENGINE_MATH_TRANSFORMABLE_H

#include "engine/math/transform.h"
#include "engine/object/object3d.h"

namespace varnel_m3g {

/// An object with a translation, a scale, an orientation and a general matrix, from which it
/// derives one composite transform T R S M on demand.
class Transformable : public Object3D {
 public:
  void dump() override;
  ~Transformable() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;

  /// Notes that what derives from this object's transform has to be brought up to date.
  virtual void setUpdatePending(bool pending);

  /// Reads the Transformable section of an object record.
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  void setTranslation(float x, float y, float z);
  void translate(float x, float y, float z);
  /// Writes 3 floats. Throws std::invalid_argument for a null pointer.
  void getTranslation(float* out) const;

  void setScale(float x, float y, float z);
  /// Multiplies the present scale.
  void scale(float x, float y, float z);
  /// Writes 3 floats. Throws std::invalid_argument for a null pointer.
  void getScale(float* out) const;

  /// Degrees about an axis of any length. This and the next two throw std::invalid_argument when
  /// the axis is zero and the angle is not.
  void setOrientation(float angle, float ax, float ay, float az);
  /// Rotates after the present orientation.
  void preRotate(float angle, float ax, float ay, float az);
  /// Rotates before the present orientation.
  void postRotate(float angle, float ax, float ay, float az);
  /// Writes 4 floats, degrees from 0 to 360 and the axis, as derived from the quaternion; all zero
  /// for no rotation. Throws std::invalid_argument for a null pointer.
  void getOrientation(float* out) const;

  /// Throws std::invalid_argument when this is a node and the bottom row is not 0, 0, 0, 1.
  void setTransform(const Transform& transform);
  void setTransformToIdentity();
  void getTransform(Transform& out) const { out = generalTransform; }

  void getCompositeTransform(Transform& out) { out = updateComposite(); }
  /// Brings the composite up to date.
  const Transform& updateComposite();

 protected:
  Transformable() = default;

  /// Virtual reset, then the defaults of this class.
  void initialise();
  /// No translation, scale, rotation or general transform.
  void setIdentityState();

  bool isUpdatePending() const { return updatePending; }

 private:
  bool isNode() const;
  /// Marks everything derived as stale.
  void changed();
  /// Takes angle and axis from the quaternion, as getOrientation gives them.
  void deriveAngleAxis();

  float scaling[3] = {1.0F, 1.0F, 1.0F};
  float translation[3] = {};
  Transform composite;
  float orientationAngle = 0.0F;  // degrees
  float orientationAxis[3] = {};  // of any length
  float orientationQuaternion[4] = {0.0F, 0.0F, 0.0F, 1.0F};
  Transform generalTransform;
  bool compositeDirty = true;
  bool updatePending = true;
};

}  // namespace varnel_m3g

#endif
