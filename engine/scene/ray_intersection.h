#ifndef VARNEL_ENGINE_SCENE_RAY_INTERSECTION_H
#define VARNEL_ENGINE_SCENE_RAY_INTERSECTION_H

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class Node;

/// What a pick found. It is no Object3D: the Java side holds it by pointer.
class RayIntersection {
 public:
  RayIntersection();
  ~RayIntersection();

  const boost::shared_ptr<Node>& getIntersected() const { return intersected; }
  /// 6 floats: origin, then direction. Throws std::invalid_argument for null.
  void getRay(float* out) const;
  /// The ray parameter of the hit; 0 means no hit.
  float getDistance() const { return distance; }
  int getSubmeshIndex() const { return submeshIndex; }
  float getNormalX() const { return normal[0]; }
  float getNormalY() const { return normal[1]; }
  float getNormalZ() const { return normal[2]; }
  /// Throw std::out_of_range below 0 and above the number of texture units; the number itself
  /// passes and reads 0.
  float getTextureS(int unit) const;
  float getTextureT(int unit) const;

  // Written by the levels of a pick.
  void setRay(const float* origin, const float* direction);
  void setDistance(float newDistance) { distance = newDistance; }
  void setNormal(const float* newNormal);
  void setTextureCoords(unsigned unit, float s, float t);
  void setIntersected(const boost::shared_ptr<Node>& node, int submesh);

 private:
  boost::shared_ptr<Node> intersected;
  float rayOrigin[3] = {0.0f, 0.0f, 0.0f};
  float rayDirection[3] = {0.0f, 0.0f, 1.0f};
  float distance = 0.0f;
  int submeshIndex = 0;
  std::vector<float> textureS;
  std::vector<float> textureT;
  float normal[3] = {0.0f, 0.0f, 1.0f};
};

}  // namespace varnel_m3g

#endif
