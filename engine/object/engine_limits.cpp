#include "engine/object/engine_limits.h"

namespace varnel_m3g {

int maxTextureUnits = 1;
int maxViewportWidth = 100000;
int maxViewportHeight = 100000;
int maxTransformsPerVertex = 0;

}  // namespace varnel_m3g
