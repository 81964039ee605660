#ifndef VARNEL_TESTS_SUPPORT_TOLERANCES_H
#define VARNEL_TESTS_SUPPORT_TOLERANCES_H

// How far a pixel may be from what the scene demands, in steps of an 8-bit channel.

/// For colours that the driver computes and rounds once: half a step of rounding, and half of the
/// interpolation of equal corners.
constexpr int colorTolerance = 1;

/// For colours that pass through lighting or fog: the vertex colour and the exponential are
/// approximated, and rounded again on the way to the frame buffer.
constexpr int litTolerance = 2;

/// For texels in between: a software driver weights them with eight bits, so that two texels 255
/// apart may be off by two steps, and by one more of rounding in each of the two directions.
constexpr int filterTolerance = 4;

#endif
