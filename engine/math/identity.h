#ifndef VARNEL_ENGINE_MATH_IDENTITY_H
#define VARNEL_ENGINE_MATH_IDENTITY_H

namespace varnel_m3g {

/// The 16 floats of the identity matrix.
extern const float identityTable[16];

}  // namespace varnel_m3g

#endif
