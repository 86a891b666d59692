// KRVec2.cpp -- arithmetic on KRVec2: sums, scaling, projection, lengths and angles.
//
// Owns:    nothing but code; every function reads its arguments and writes its result pointer.
// Read by: the engine's matrix and geometry modules and every game object that moves.
#include "KRVec2.h"

#include <cmath>

void KRVec2Zero(KRVec2* pResult)
{
    pResult->x = 0.0f;
    pResult->y = 0.0f;
}

void KRVec2Set(KRVec2* pResult, f32 x, f32 y)
{
    pResult->x = x;
    pResult->y = y;
}

void KRVec2Neg(KRVec2* pResult, const KRVec2* pVec0)
{
    pResult->x = -pVec0->x;
    pResult->y = -pVec0->y;
}

void KRVec2Add(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1)
{
    pResult->x = pVec0->x + pVec1->x;
    pResult->y = pVec0->y + pVec1->y;
}

void KRVec2Sub(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1)
{
    pResult->x = pVec0->x - pVec1->x;
    pResult->y = pVec0->y - pVec1->y;
}

void KRVec2Normalize(KRVec2* pResult, const KRVec2* pVec0)
{
    // Reciprocal first and no guard for zero length: a zero vector comes out as NaN.
    f32 invLen = 1.0f / KRVec2Length(pVec0);

    pResult->x = pVec0->x * invLen;
    pResult->y = pVec0->y * invLen;
}

void KRVec2Scale(KRVec2* pResult, const KRVec2* pVec0, f32 s)
{
    pResult->x = pVec0->x * s;
    pResult->y = pVec0->y * s;
}

void KRVec2ScaleAdd(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 s)
{
    pResult->x = pVec0->x * s + pVec1->x;
    pResult->y = pVec0->y * s + pVec1->y;
}

void KRVec2ScaleSub(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 s)
{
    pResult->x = pVec0->x * s - pVec1->x;
    pResult->y = pVec0->y * s - pVec1->y;
}

void KRVec2Project(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1)
{
    KRVec2 n;

    KRVec2Normalize(&n, pVec1);
    KRVec2Scale(pResult, &n, KRVec2DotProduct(pVec0, &n));
}

void KRVec2ProjectPerp(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1)
{
    KRVec2Project(pResult, pVec0, pVec1);
    // pVec0 is read after the projection was written: with pResult equal to pVec0 this
    // subtracts the projection from itself and gives zero. Callers have always had that.
    KRVec2Sub(pResult, pVec0, pResult);
}

void KRVec2Lerp(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 t)
{
    pResult->x = (pVec1->x - pVec0->x) * t + pVec0->x;
    pResult->y = (pVec1->y - pVec0->y) * t + pVec0->y;
}

f32 KRVec2Length(const KRVec2* pVec0)
{
    return sqrtf(pVec0->x * pVec0->x + pVec0->y * pVec0->y);
}

f32 KRVec2SquareLength(const KRVec2* pVec0)
{
    return pVec0->x * pVec0->x + pVec0->y * pVec0->y;
}

f32 KRVec2Distance(const KRVec2* pVec0, const KRVec2* pVec1)
{
    KRVec2 d;

    KRVec2Sub(&d, pVec0, pVec1);
    return KRVec2Length(&d);
}

f32 KRVec2SquareDistance(const KRVec2* pVec0, const KRVec2* pVec1)
{
    KRVec2 d;

    KRVec2Sub(&d, pVec0, pVec1);
    return KRVec2SquareLength(&d);
}

f32 KRVec2DotProduct(const KRVec2* pVec0, const KRVec2* pVec1)
{
    return pVec0->x * pVec1->x + pVec0->y * pVec1->y;
}

f32 KRVec2CrossProductMag(const KRVec2* pVec0, const KRVec2* pVec1)
{
    return pVec0->x * pVec1->y - pVec1->x * pVec0->y;
}

void KRVec2FromAngle(KRVec2* pResult, f32 angle)
{
    pResult->x = cosf(angle);
    pResult->y = sinf(angle);
}

s32 KRVec2Test(s32 a, s32 b)
{
    return a + b;
}
