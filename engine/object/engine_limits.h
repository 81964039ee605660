#ifndef VARNEL_ENGINE_OBJECT_ENGINE_LIMITS_H
#define VARNEL_ENGINE_OBJECT_ENGINE_LIMITS_H

namespace varnel_m3g {

// Process-wide limits. They hold these values until the renderer has read those of OpenGL ES.

/// Texture units per appearance, vertex buffer and ray intersection; 1 at start.
extern int maxTextureUnits;
/// Largest viewport in pixels; 100000 at start.
extern int maxViewportWidth;
extern int maxViewportHeight;
/// Bones that may move one vertex; 0 at start.
extern int maxTransformsPerVertex;

}  // namespace varnel_m3g

#endif
