#ifndef VARNEL_ENGINE_RENDER_GRAPHICS3D_H
#define VARNEL_ENGINE_RENDER_GRAPHICS3D_H

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>

#include "engine/math/transform.h"
#include "engine/object/java_types.h"
#include "engine/render/light_list.h"
#include "engine/surface/rectangle.h"

namespace varnel_m3g {

class Appearance;
class Background;
class Camera;
class Image2D;
class IndexBuffer;
class Light;
class Node;
class VertexBuffer;
class World;

/// A drawable of the window system that can be bound: the EGL surface that stands for it.
struct WindowSurface {
  /// An EGLSurface of the default display.
  void* surface = nullptr;
};

/// The process-wide renderer: it binds a target, holds the viewport, the depth range, the current
/// camera and lights, and draws. It is made before any native method runs and never deleted.
///
/// Failures are standard exceptions whose texts are part of the interface.
class Graphics3D {
 public:
  /// The properties of the implementation by name, ordered by name; the names that begin with
  /// "support" stand for booleans.
  using Properties = std::map<std::string, int>;

  static Graphics3D& getInstance();
  Graphics3D(const Graphics3D&) = delete;
  Graphics3D& operator=(const Graphics3D&) = delete;

  /// Reads the limits of OpenGL ES, once, and keeps them process-wide. Makes a private context when
  /// none is current. After a failure, which it prints, the table is empty and the next call tries
  /// again.
  static const Properties& initProps();

  /// The same as bindTarget(target, true, 0).
  void bindTarget(const WindowSurface* target);
  /// Binds a window surface that is current for reading and drawing, sends the depth range and
  /// resets the caches of the render state. The record must outlive the bind.
  /// @param hints 0 to 30; stored only
  /// @throws std::runtime_error if a target is bound
  /// @throws std::invalid_argument for bad hints, a surface that is not current or not valid, or
  ///     one that exceeds the largest viewport
  void bindTarget(const WindowSurface* target, bool depthBuffer, int hints);
  /// The same for an image, whose off-screen surface is made at the first such bind and kept. The
  /// image must outlive the bind.
  void bindImageTarget(Image2D* image);
  void bindImageTarget(Image2D* image, bool depthBuffer, int hints);
  /// Forgets the bound target, if any.
  void releaseTarget();
  /// The bound drawable; null when none is bound.
  const void* getTarget() const { return target; }

  /// Sets the viewport in pixels; the origin is the target's top left corner. OpenGL ES learns of
  /// it at the next clear.
  /// @throws std::runtime_error without a target
  /// @throws std::invalid_argument for a size below 1 or above the limits
  void setViewport(int x, int y, int width, int height);
  int getViewportX() const { return viewport.x; }
  int getViewportY() const { return viewport.y; }
  int getViewportWidth() const { return viewport.width; }
  int getViewportHeight() const { return viewport.height; }
  /// The viewport as OpenGL ES counts: from the bottom for a window.
  const Rectangle& getGlViewport() const { return glViewportRect; }
  bool coversTarget() const { return viewportCoversTarget; }

  /// Stores the depth range, 0 to 1 each; it reaches OpenGL ES at the next bind.
  /// @throws std::runtime_error without a target
  /// @throws std::invalid_argument for a value outside 0 to 1
  void setDepthRange(float near, float far);
  float getDepthRangeNear() const { return depthRangeNear; }
  float getDepthRangeFar() const { return depthRangeFar; }
  int getHints() const { return hints; }
  bool isDepthBufferEnabled() const { return depthBufferEnabled; }

  /// Sets the current camera and the transform from its coordinates to the world's, which is stored
  /// inverted. Without a camera or a transform the identity is stored.
  /// @throws std::underflow_error for a singular transform, which stays in place of the former one;
  /// the camera itself stays
  void setCamera(const boost::shared_ptr<Camera>& camera, const Transform* transform);
  /// The current camera; a given transform receives what setCamera was given.
  const boost::shared_ptr<Camera>& getCamera(Transform* transform) const;

  int addLight(const boost::shared_ptr<Light>& light, const Transform* transform);
  /// @throws std::out_of_range if there is no such light
  void setLight(int index, const boost::shared_ptr<Light>& light, const Transform* transform);
  /// @throws std::out_of_range if there is no such light
  const boost::shared_ptr<Light>& getLight(int index, Transform* transform) const;
  void resetLights();
  int getLightCount() const;

  /// Sets the viewport of OpenGL ES, clears the target and draws the background's image; null means
  /// the default background.
  /// @throws std::runtime_error without a target
  void clear(const boost::shared_ptr<Background>& background);

  /// Draws a world through its active camera with its own lights and background.
  /// @throws std::invalid_argument for a null world
  /// @throws std::runtime_error without a target or a usable active camera
  /// @throws std::underflow_error if the camera's transform has no inverse
  void render(const boost::shared_ptr<World>& world);
  /// Draws a subtree with the current camera and lights; a null transform means the identity.
  /// @throws std::invalid_argument for a null node or one that cannot be drawn
  /// @throws std::runtime_error without a target or a camera
  void render(const boost::shared_ptr<Node>& node, const Transform* transform);
  /// Draws one submesh at once with the scope -1.
  void render(const boost::shared_ptr<VertexBuffer>& vertices,
              const boost::shared_ptr<IndexBuffer>& triangles,
              const boost::shared_ptr<Appearance>& appearance, const Transform* transform);
  /// Draws one submesh at once. Nothing happens when the scope or that of the camera is 0.
  /// @throws std::invalid_argument for a null argument other than the transform
  /// @throws std::runtime_error without a target, a camera or positions
  void render(const boost::shared_ptr<VertexBuffer>& vertices,
              const boost::shared_ptr<IndexBuffer>& triangles,
              const boost::shared_ptr<Appearance>& appearance, const Transform* transform,
              int scope);

  /// A new local reference to the Java peer, which is made and registered at the first call.
  jobject getJavaPeer(JNIEnv* env);

 private:
  Graphics3D() = default;
  ~Graphics3D() = delete;

  void checkBindable(int newHints) const;
  void checkTargetAndCamera() const;
  void checkViewportLimits(int width, int height) const;
  void attachTarget(const void* drawable, int width, int height, bool depthBuffer);
  void renderNode(const boost::shared_ptr<Node>& node, const Transform& transform);
  void enterWorld(World& world);
  void loadCamera() const;

  Rectangle viewport;
  Rectangle glViewportRect;
  Rectangle targetRect;
  LightList lights;
  boost::shared_ptr<Camera> currentCamera;
  Transform cameraTransform;
  bool cameraDirty = true;
  const void* target = nullptr;
  void* targetSurface = nullptr;
  Image2D* targetImage = nullptr;
  void* m_eglPbuffer = nullptr;
  void* eglDisplay = nullptr;
  float depthRangeNear = 0.0f;
  float depthRangeFar = 1.0f;
  bool depthBufferEnabled = true;
  int hints = 0;
  bool viewportCoversTarget = false;
  jobject javaPeer = nullptr;
  JavaVM* javaVM = nullptr;
};

/// The identity that stands in for a null transform everywhere in the renderer.
const Transform& identityTransform();
/// The background that a clear without one uses; it is made before any native method runs.
const boost::shared_ptr<Background>& defaultBackground();

}  // namespace varnel_m3g

#endif
