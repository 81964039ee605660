#ifndef VARNEL_ENGINE_SCENE_SKIN_DEBUG_H
#define VARNEL_ENGINE_SCENE_SKIN_DEBUG_H

namespace varnel_m3g {

class Transform;

/// Whether skinned meshes write each bone's matrices, frame by frame, to the standard error stream.
#ifdef VARNEL_SKIN_DEBUG
constexpr bool skinDebug = true;
#else
constexpr bool skinDebug = false;
#endif

/// Writes a run of vertices that a bone was given.
void debugRun(int firstVertex, int numVertices);
/// Writes the title and the rows of the matrix.
void debugMatrix(const char* title, const Transform& transform);

}  // namespace varnel_m3g

#endif
