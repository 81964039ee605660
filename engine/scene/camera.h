#ifndef VARNEL_ENGINE_SCENE_CAMERA_H
#define VARNEL_ENGINE_SCENE_CAMERA_H

#include "engine/scene/node.h"

namespace varnel_m3g {

/// A node that holds a projection, as a matrix ready for the renderer.
class Camera : public Node {
 public:
  /// Projection types.
  enum { GENERIC = 48, PARALLEL = 49, PERSPECTIVE = 50 };

  static boost::shared_ptr<Camera> create();
  Camera();

  jobject createJavaPeer(JNIEnv* env) override;
  void dump() override;
  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override;
  void reset() override;
  void setRoot(boost::weak_ptr<Node> root) override;

  /// 16 floats, column-major.
  void setGeneric(const float* matrix);
  /// fovy is the height of the view volume. Throws std::invalid_argument for a height or an aspect
  /// ratio not above 0.
  void setParallel(float fovy, float aspectRatio, float near, float far);
  /// fovy in degrees. Throws std::invalid_argument for a fovy not between 0 and 180, a near not
  /// above 0, a negative aspect ratio and a far not above near; the type changes all the same.
  void setPerspective(float fovy, float aspectRatio, float near, float far);
  /// Copies the matrix, 16 floats, column-major; null copies nothing. Returns the type.
  int getProjectionMatrix(float* out) const;
  /// Copies fovy, aspect ratio, near and far of a parallel or perspective projection; null copies
  /// nothing. Returns the type.
  int getProjection(float* params) const;
  /// 16 floats, column-major.
  const float* projection() const { return projectionMatrix; }
  /// Scratch for whoever computes where the camera stands.
  Transform& scratchTransform() { return spareTransform; }

  void load(M3gObjectInputStream& stream, ObjectTable& table);

 private:
  void setMatrixToIdentity();
  void storeParams(float fovy, float aspectRatio, float near, float far);

  Transform spareTransform;
  float projectionMatrix[16];
  int projectionType = GENERIC;
  float projectionParams[4] = {0.0f, 0.0f, 0.0f, 0.0f};
};

}  // namespace varnel_m3g

#endif
