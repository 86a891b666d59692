// KRMtx33.h -- the 3 by 3 matrix that places and draws every game object, and its free functions.
//
// Row-major, m[row][column]; points are columns multiplied on the right, so translation sits
// in the third column and in KRMtx33Concat(out, a, b) b acts first.
#ifndef KR_MTX33_H
#define KR_MTX33_H

#include "KRTypes.h"
#include "KRVec2.h"

struct KRMtx33
{
    f32 m[3][3];
};

void KRMtx33Identity(KRMtx33* pResult);
void KRMtx33Transpose(KRMtx33* pResult, const KRMtx33* pMtx);
// Returns the determinant; 0.0 and pResult untouched when the matrix is (nearly) singular.
f32  KRMtx33Inverse(KRMtx33* pResult, const KRMtx33* pMtx);
// KRMtx33Inverse, then pResult transposed on itself; returns the determinant.
f32  KRMtx33InvTranspose(KRMtx33* pResult, const KRMtx33* pMtx);
void KRMtx33Concat(KRMtx33* pResult, const KRMtx33* pMtx0, const KRMtx33* pMtx1);
// Does nothing.
void KRMtx33Orthogonalize(KRMtx33* pResult, const KRMtx33* pMtx);
f32  KRMtx33Determinant(const KRMtx33* pMtx);
void KRMtx33SetCol(KRMtx33* pResult, u32 col, const KRVec2* pVec);
void KRMtx33SetRow(KRMtx33* pResult, u32 row, const KRVec2* pVec);
void KRMtx33GetCol(KRVec2* pResult, const KRMtx33* pMtx, u32 col);
void KRMtx33GetRow(KRVec2* pResult, const KRMtx33* pMtx, u32 row);
void KRMtx33Trans(KRMtx33* pResult, f32 x, f32 y);
void KRMtx33TransApply(KRMtx33* pResult, const KRMtx33* pMtx, f32 x, f32 y);
void KRMtx33Scale(KRMtx33* pResult, f32 x, f32 y);
void KRMtx33ScaleApply(KRMtx33* pResult, const KRMtx33* pMtx, f32 x, f32 y);
// Counter-clockwise in a y-up world, angle in radians.
void KRMtx33Rot(KRMtx33* pResult, f32 angle);
void KRMtx33RotDeg(KRMtx33* pResult, f32 degrees);
void KRMtx33MultVec(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec);
void KRMtx33MultVecArray(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec, u32 count);
// Upper left 2 by 2 only: scale and rotation, no translation.
void KRMtx33MultVecSR(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec);
void KRMtx33MultVecArraySR(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec, u32 count);

#endif // KR_MTX33_H
