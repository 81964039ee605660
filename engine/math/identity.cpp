#include "engine/math/identity.h"

namespace varnel_m3g {

constinit const float identityTable[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

}  // namespace varnel_m3g
