#ifndef VARNEL_ENGINE_SCENE_MUTEX_H
#define VARNEL_ENGINE_SCENE_MUTEX_H

namespace varnel_m3g {

/// The place of a lock around walks of a node's children. It excludes nobody: a scene is used by
/// one thread at a time. A real lock put here has to allow re-entry.
class Mutex {
 public:
  void lock() {}
  void unlock() {}
};

}  // namespace varnel_m3g

#endif
