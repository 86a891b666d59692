// KRMath.cpp -- scalar helpers of the engine: angle conversion, trigonometry, powers of two,
// clamping, wrapping and range tests.
//
// Owns:    nothing but code and two conversion constants.
// Read by: the geometry tests, the debug primitives and the game's torch.
#include "KRMath.h"

#include <cmath>

// 0.017453292 (float bits 0x3C8EFA35).
static const f32 sDegToRad = 0.017453292f;
// 57.295784 (float bits 0x42652EE2) is one unit above the nearest float of 180 / pi. Angles
// converted back to degrees have always carried that unit; it stays so results do not shift.
static const f32 sRadToDeg = 57.295784f;

f32 KRDegToRad(f32 x)
{
    return x * sDegToRad;
}

f32 KRRadToDeg(f32 x)
{
    return x * sRadToDeg;
}

f32 KRSin(f32 x)
{
    return sinf(x);
}

f32 KRCos(f32 x)
{
    return cosf(x);
}

f32 KRTan(f32 x)
{
    return tanf(x);
}

f32 KRASin(f32 x)
{
    return asinf(x);
}

f32 KRACos(f32 x)
{
    return acosf(x);
}

f32 KRATan(f32 x)
{
    return atanf(x);
}

u32 KRIsPowOf2(u32 x)
{
    return (x != 0 && (x & (x - 1)) == 0) ? 1 : 0;
}

u32 KRNextPowOf2(u32 x)
{
    // No decrement before the fill: a power of two gives the next one up (8 gives 16) and 0
    // gives 1. Callers of the engine have always had these results; they stay.
    x |= x >> 1;
    x |= x >> 2;
    x |= x >> 4;
    x |= x >> 8;
    x |= x >> 16;
    return x + 1;
}

u32 KRLogBase2(u32 x)
{
    u32 n = 0;

    x >>= 1;
    while ((x >> n) != 0)
        ++n;
    return n;
}

f32 KRClamp(f32 x, f32 min, f32 max)
{
    if (min > x)
        return min;
    if (x > max)
        return max;
    return x;
}

f32 KRWrap(f32 x, f32 x0, f32 x1)
{
    // One step only: a value more than a range width outside stays outside.
    if (x0 > x)
        return x + (x1 - x0);
    if (x > x1)
        return x - (x1 - x0);
    return x;
}

f32 KRMin(f32 a, f32 b)
{
    return (b > a) ? a : b;
}

f32 KRMax(f32 a, f32 b)
{
    return (b > a) ? b : a;
}

u32 KRInRange(f32 x, f32 x0, f32 x1)
{
    return (x >= x0 && x1 >= x) ? 1 : 0;
}
