// KRVec2.h -- the two-float vector every game object is positioned with, and its free functions.
//
// Results go through the first pointer; it may be the same as any argument, except that
// KRVec2ProjectPerp with pResult equal to pVec0 gives (0, 0).
#ifndef KR_VEC2_H
#define KR_VEC2_H

#include "KRTypes.h"

struct KRVec2
{
    f32 x;
    f32 y;
};

void KRVec2Zero(KRVec2* pResult);
void KRVec2Set(KRVec2* pResult, f32 x, f32 y);
void KRVec2Neg(KRVec2* pResult, const KRVec2* pVec0);
void KRVec2Add(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1);
void KRVec2Sub(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1);
void KRVec2Normalize(KRVec2* pResult, const KRVec2* pVec0);
void KRVec2Scale(KRVec2* pResult, const KRVec2* pVec0, f32 s);
// pVec0 * s + pVec1
void KRVec2ScaleAdd(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 s);
// pVec0 * s - pVec1
void KRVec2ScaleSub(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 s);
// The part of pVec0 along pVec1.
void KRVec2Project(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1);
// The part of pVec0 across pVec1.
void KRVec2ProjectPerp(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1);
// (pVec1 - pVec0) * t + pVec0, t not clamped.
void KRVec2Lerp(KRVec2* pResult, const KRVec2* pVec0, const KRVec2* pVec1, f32 t);
f32  KRVec2Length(const KRVec2* pVec0);
f32  KRVec2SquareLength(const KRVec2* pVec0);
f32  KRVec2Distance(const KRVec2* pVec0, const KRVec2* pVec1);
f32  KRVec2SquareDistance(const KRVec2* pVec0, const KRVec2* pVec1);
f32  KRVec2DotProduct(const KRVec2* pVec0, const KRVec2* pVec1);
f32  KRVec2CrossProductMag(const KRVec2* pVec0, const KRVec2* pVec1);
// (cos angle, sin angle), angle in radians.
void KRVec2FromAngle(KRVec2* pResult, f32 angle);
// The sum of two integers; exported under this name and kept as it is.
s32  KRVec2Test(s32 a, s32 b);

#endif // KR_VEC2_H
