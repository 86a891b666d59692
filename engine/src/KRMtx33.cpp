// KRMtx33.cpp -- the 3 by 3 matrix family: building, combining, inverting and applying transforms.
//
// Owns:    nothing but code; every function reads its arguments and writes its result pointer.
// Read by: the graphics frame (KRGfxSetTransform) and every game object's transform.
#include "KRMtx33.h"

#include <cmath>
#include <cstring>

// Below this squared determinant a matrix counts as singular (float bits 0x2EDBE6FE).
static const f32 sInverseDetSqLimit = 9.9999994e-11f;

// Degrees to radians here use 3.1415, four decimals only, unlike the rest of the angle code.
// Rotations built in degrees have always turned by this much; changing it would move objects.
static const f32 sRotDegPi = 3.1415f;

void KRMtx33Identity(KRMtx33* pResult)
{
    for (u32 r = 0; r < 3; ++r)
        for (u32 c = 0; c < 3; ++c)
            pResult->m[r][c] = (r == c) ? 1.0f : 0.0f;
}

void KRMtx33Transpose(KRMtx33* pResult, const KRMtx33* pMtx)
{
    if (pResult == pMtx)
    {
        for (u32 r = 0; r < 3; ++r)
        {
            for (u32 c = r + 1; c < 3; ++c)
            {
                f32 tmp = pResult->m[r][c];
                pResult->m[r][c] = pResult->m[c][r];
                pResult->m[c][r] = tmp;
            }
        }
        return;
    }

    for (u32 r = 0; r < 3; ++r)
        for (u32 c = 0; c < 3; ++c)
            pResult->m[r][c] = pMtx->m[c][r];
}

f32 KRMtx33Inverse(KRMtx33* pResult, const KRMtx33* pMtx)
{
    const f32(*m)[3] = pMtx->m;

    f32 c0 = m[1][1] * m[2][2] - m[1][2] * m[2][1];
    f32 c3 = m[1][2] * m[2][0] - m[1][0] * m[2][2];
    f32 c6 = m[1][0] * m[2][1] - m[1][1] * m[2][0];
    f32 det = m[0][0] * c0 + m[0][1] * c3 + m[0][2] * c6;

    if (det * det < sInverseDetSqLimit)
        return 0.0f;

    // Every cofactor is read before the first write, so pResult may be pMtx.
    f32 c1 = m[0][2] * m[2][1] - m[0][1] * m[2][2];
    f32 c4 = m[0][0] * m[2][2] - m[0][2] * m[2][0];
    f32 c7 = m[0][1] * m[2][0] - m[0][0] * m[2][1];
    f32 c2 = m[0][1] * m[1][2] - m[0][2] * m[1][1];
    f32 c5 = m[0][2] * m[1][0] - m[0][0] * m[1][2];
    f32 c8 = m[0][0] * m[1][1] - m[0][1] * m[1][0];

    pResult->m[0][0] = c0 / det;
    pResult->m[0][1] = c1 / det;
    pResult->m[0][2] = c2 / det;
    pResult->m[1][0] = c3 / det;
    pResult->m[1][1] = c4 / det;
    pResult->m[1][2] = c5 / det;
    pResult->m[2][0] = c6 / det;
    pResult->m[2][1] = c7 / det;
    pResult->m[2][2] = c8 / det;

    return det;
}

f32 KRMtx33InvTranspose(KRMtx33* pResult, const KRMtx33* pMtx)
{
    f32 det = KRMtx33Inverse(pResult, pMtx);

    // The transpose runs whatever the inverse did: a singular input leaves pResult transposed.
    KRMtx33Transpose(pResult, pResult);
    return det;
}

void KRMtx33Concat(KRMtx33* pResult, const KRMtx33* pMtx0, const KRMtx33* pMtx1)
{
    KRMtx33 product;

    for (u32 i = 0; i < 3; ++i)
    {
        for (u32 j = 0; j < 3; ++j)
        {
            product.m[i][j] = pMtx0->m[i][0] * pMtx1->m[0][j] + pMtx0->m[i][1] * pMtx1->m[1][j] +
                              pMtx0->m[i][2] * pMtx1->m[2][j];
        }
    }

    // Built aside and copied at the end, so pResult may be either operand.
    std::memcpy(pResult, &product, sizeof(product));
}

void KRMtx33Orthogonalize(KRMtx33* pResult, const KRMtx33* pMtx)
{
    // Exported but never implemented: both matrices are left as they are.
    (void)pResult;
    (void)pMtx;
}

f32 KRMtx33Determinant(const KRMtx33* pMtx)
{
    const f32(*m)[3] = pMtx->m;

    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) +
           m[0][1] * (m[1][2] * m[2][0] - m[1][0] * m[2][2]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

void KRMtx33SetCol(KRMtx33* pResult, u32 col, const KRVec2* pVec)
{
    pResult->m[0][col] = pVec->x;
    pResult->m[1][col] = pVec->y;
    pResult->m[2][col] = (col == 2) ? 1.0f : 0.0f;
}

void KRMtx33SetRow(KRMtx33* pResult, u32 row, const KRVec2* pVec)
{
    pResult->m[row][0] = pVec->x;
    pResult->m[row][1] = pVec->y;
    pResult->m[row][2] = (row == 2) ? 1.0f : 0.0f;
}

void KRMtx33GetCol(KRVec2* pResult, const KRMtx33* pMtx, u32 col)
{
    pResult->x = pMtx->m[0][col];
    pResult->y = pMtx->m[1][col];
}

void KRMtx33GetRow(KRVec2* pResult, const KRMtx33* pMtx, u32 row)
{
    pResult->x = pMtx->m[row][0];
    pResult->y = pMtx->m[row][1];
}

void KRMtx33Trans(KRMtx33* pResult, f32 x, f32 y)
{
    KRMtx33Identity(pResult);
    pResult->m[0][2] = x;
    pResult->m[1][2] = y;
}

void KRMtx33TransApply(KRMtx33* pResult, const KRMtx33* pMtx, f32 x, f32 y)
{
    if (pResult != pMtx)
        std::memcpy(pResult, pMtx, sizeof(*pResult));

    pResult->m[0][2] += x;
    pResult->m[1][2] += y;
}

void KRMtx33Scale(KRMtx33* pResult, f32 x, f32 y)
{
    KRMtx33Identity(pResult);
    pResult->m[0][0] = x;
    pResult->m[1][1] = y;
}

void KRMtx33ScaleApply(KRMtx33* pResult, const KRMtx33* pMtx, f32 x, f32 y)
{
    for (u32 c = 0; c < 3; ++c)
    {
        pResult->m[0][c] = pMtx->m[0][c] * x;
        pResult->m[1][c] = pMtx->m[1][c] * y;
        pResult->m[2][c] = pMtx->m[2][c];
    }
}

void KRMtx33Rot(KRMtx33* pResult, f32 angle)
{
    f32 c = cosf(angle);
    f32 s = sinf(angle);

    KRMtx33Identity(pResult);
    pResult->m[0][0] = c;
    pResult->m[0][1] = -s;
    pResult->m[1][0] = s;
    pResult->m[1][1] = c;
}

void KRMtx33RotDeg(KRMtx33* pResult, f32 degrees)
{
    // Multiply first, divide second, all in 32-bit floats: 180 degrees gives 3.1414998.
    KRMtx33Rot(pResult, degrees * sRotDegPi / 180.0f);
}

void KRMtx33MultVec(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec)
{
    // Both inputs are read before the write, so pResult may be pVec.
    f32 x = pMtx->m[0][0] * pVec->x + pMtx->m[0][1] * pVec->y + pMtx->m[0][2];
    f32 y = pMtx->m[1][0] * pVec->x + pMtx->m[1][1] * pVec->y + pMtx->m[1][2];

    pResult->x = x;
    pResult->y = y;
}

void KRMtx33MultVecArray(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec, u32 count)
{
    for (u32 i = 0; i < count; ++i)
        KRMtx33MultVec(pResult + i, pMtx, pVec + i);
}

void KRMtx33MultVecSR(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec)
{
    f32 x = pMtx->m[0][0] * pVec->x + pMtx->m[0][1] * pVec->y;
    f32 y = pMtx->m[1][0] * pVec->x + pMtx->m[1][1] * pVec->y;

    pResult->x = x;
    pResult->y = y;
}

void KRMtx33MultVecArraySR(KRVec2* pResult, const KRMtx33* pMtx, const KRVec2* pVec, u32 count)
{
    for (u32 i = 0; i < count; ++i)
        KRMtx33MultVecSR(pResult + i, pMtx, pVec + i);
}
