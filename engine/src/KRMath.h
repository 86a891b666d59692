// KRMath.h -- scalar helpers: angle conversion, trigonometry, powers of two, clamping and wrapping.
#ifndef KR_MATH_H
#define KR_MATH_H

#include "KRTypes.h"

// Pi as the game uses it, and twice that.
const f32 KR_PI     = 3.1415925f;
const f32 KR_TWO_PI = 6.283185f;
// The tolerance of the engine's parallel, zero-length and equality tests.
const f32 KR_EPSILON = 0.00001f;

f32 KRDegToRad(f32 x);
f32 KRRadToDeg(f32 x);

f32 KRSin(f32 x);
f32 KRCos(f32 x);
f32 KRTan(f32 x);
f32 KRASin(f32 x);
f32 KRACos(f32 x);
f32 KRATan(f32 x);

// 1 when x is a power of two, else 0.
u32 KRIsPowOf2(u32 x);
// The next power of two strictly above a power of two; 0 gives 1.
u32 KRNextPowOf2(u32 x);
// floor(log2 x) for x >= 1; 0 for 0 and 1.
u32 KRLogBase2(u32 x);

// The minimum test comes first: with min above max the result is min.
f32 KRClamp(f32 x, f32 min, f32 max);
// Brings x back into x0..x1 by one range width at most.
f32 KRWrap(f32 x, f32 x0, f32 x1);
f32 KRMin(f32 a, f32 b);
f32 KRMax(f32 a, f32 b);
// 1 when x0 <= x <= x1, else 0.
u32 KRInRange(f32 x, f32 x0, f32 x1);

#endif // KR_MATH_H
