// test_mtx33.cpp -- behaviour of the KRMtx33 family: building, combining, inverting and applying.
#include "KRMtx33.h"

#include "float_bits.h"

#include <cmath>
#include <gtest/gtest.h>

static KRMtx33 M(float m00, float m01, float m02, float m10, float m11, float m12, float m20,
                 float m21, float m22)
{
    KRMtx33 r = {{{m00, m01, m02}, {m10, m11, m12}, {m20, m21, m22}}};
    return r;
}

static KRVec2 V(float x, float y)
{
    KRVec2 v;
    KRVec2Set(&v, x, y);
    return v;
}

static void ExpectMatrixEq(const KRMtx33& a, const KRMtx33& b)
{
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            EXPECT_EQ(a.m[r][c], b.m[r][c]) << "element [" << r << "][" << c << "]";
}

static void ExpectMatrixNear(const KRMtx33& a, const KRMtx33& b, float tol)
{
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            EXPECT_NEAR(a.m[r][c], b.m[r][c], tol) << "element [" << r << "][" << c << "]";
}

static const KRMtx33 sRegular = M(2.0f, 1.0f, 3.0f, 0.0f, -1.0f, 4.0f, 1.0f, 2.0f, 0.5f);

TEST(Mtx33, IdentityHasOnesOnTheDiagonalAndZerosElsewhere)
{
    KRMtx33 m = sRegular;
    KRMtx33Identity(&m);
    ExpectMatrixEq(m, M(1, 0, 0, 0, 1, 0, 0, 0, 1));
}

TEST(Mtx33, TransposeSwapsRowsAndColumns)
{
    KRMtx33 r;
    KRMtx33Transpose(&r, &sRegular);
    ExpectMatrixEq(r, M(2.0f, 0.0f, 1.0f, 1.0f, -1.0f, 2.0f, 3.0f, 4.0f, 0.5f));
}

TEST(Mtx33, TransposeSwapsInPlaceWhenResultIsTheInput)
{
    KRMtx33 m = sRegular;
    KRMtx33Transpose(&m, &m);
    ExpectMatrixEq(m, M(2.0f, 0.0f, 1.0f, 1.0f, -1.0f, 2.0f, 3.0f, 4.0f, 0.5f));
}

TEST(Mtx33, DeterminantExpandsAlongTheFirstRow)
{
    // 2 (-0.5 - 8) - 1 (0 - 4) + 3 (0 + 1) = -17 + 4 + 3
    EXPECT_EQ(KRMtx33Determinant(&sRegular), -10.0f);
    KRMtx33 id;
    KRMtx33Identity(&id);
    EXPECT_EQ(KRMtx33Determinant(&id), 1.0f);
}

TEST(Mtx33, InverseOfRegularMatrixUndoesItAndReturnsTheDeterminant)
{
    KRMtx33 inv;
    KRMtx33 product;
    KRMtx33 id;
    KRMtx33Identity(&id);

    EXPECT_EQ(KRMtx33Inverse(&inv, &sRegular), -10.0f);
    KRMtx33Concat(&product, &sRegular, &inv);
    ExpectMatrixNear(product, id, 1e-6f);
    KRMtx33Concat(&product, &inv, &sRegular);
    ExpectMatrixNear(product, id, 1e-6f);
}

TEST(Mtx33, InverseDividesEachCofactorByTheDeterminant)
{
    KRMtx33 inv;
    KRMtx33Inverse(&inv, &sRegular);
    // First column cofactors: -8.5, 4, 1; first row of the inverse is c0, c1, c2 over det.
    EXPECT_EQ(FloatBits(inv.m[0][0]), FloatBits(-8.5f / -10.0f));
    EXPECT_EQ(FloatBits(inv.m[1][0]), FloatBits(4.0f / -10.0f));
    EXPECT_EQ(FloatBits(inv.m[2][0]), FloatBits(1.0f / -10.0f));
    EXPECT_EQ(FloatBits(inv.m[0][1]), FloatBits((3.0f * 2.0f - 1.0f * 0.5f) / -10.0f));
}

TEST(Mtx33, InverseMayWriteOverItsInput)
{
    KRMtx33 apart;
    KRMtx33 m = sRegular;
    KRMtx33Inverse(&apart, &sRegular);
    EXPECT_EQ(KRMtx33Inverse(&m, &m), -10.0f);
    ExpectMatrixEq(m, apart);
}

TEST(Mtx33, InverseOfNearlySingularMatrixLeavesOutAlone)
{
    // Determinant 1e-6: its square, 1e-12, is below the limit.
    KRMtx33 a = M(1e-6f, 0, 0, 0, 1, 0, 0, 0, 1);
    KRMtx33 out = sRegular;
    EXPECT_EQ(KRMtx33Inverse(&out, &a), 0.0f);
    ExpectMatrixEq(out, sRegular);
}

TEST(Mtx33, InverseOfSingularMatrixReturnsZero)
{
    KRMtx33 a = M(1, 2, 3, 2, 4, 6, 0, 0, 1);
    KRMtx33 out = sRegular;
    EXPECT_EQ(KRMtx33Inverse(&out, &a), 0.0f);
    ExpectMatrixEq(out, sRegular);
}

TEST(Mtx33, InverseAcceptsADeterminantWhoseSquareIsExactlyTheLimit)
{
    // 1e-5f squared is 9.9999994e-11f (bits 0x2EDBE6FE): not below the limit, so it inverts.
    float det = 1e-5f;
    ASSERT_EQ(FloatBits(det * det), 0x2EDBE6FEu);
    KRMtx33 out;
    KRMtx33 a = M(det, 0, 0, 0, 1, 0, 0, 0, 1);
    EXPECT_EQ(KRMtx33Inverse(&out, &a), det);
    EXPECT_EQ(FloatBits(out.m[0][0]), FloatBits(1.0f / det));
    EXPECT_EQ(out.m[1][1], 1.0f);
}

TEST(Mtx33, InverseRejectsTheNextSmallerDeterminant)
{
    float det = std::nextafter(1e-5f, 0.0f);
    ASSERT_LT(FloatBits(det * det), 0x2EDBE6FEu);
    KRMtx33 out = sRegular;
    KRMtx33 a = M(det, 0, 0, 0, 1, 0, 0, 0, 1);
    EXPECT_EQ(KRMtx33Inverse(&out, &a), 0.0f);
    ExpectMatrixEq(out, sRegular);
}

TEST(Mtx33, InvTransposeIsTheTransposeOfTheInverse)
{
    KRMtx33 inv;
    KRMtx33 expected;
    KRMtx33 r;
    KRMtx33Inverse(&inv, &sRegular);
    KRMtx33Transpose(&expected, &inv);
    EXPECT_EQ(KRMtx33InvTranspose(&r, &sRegular), -10.0f);
    ExpectMatrixEq(r, expected);
}

TEST(Mtx33, InvTransposeOfSingularMatrixStillTransposesTheResult)
{
    KRMtx33 a = M(1, 2, 3, 2, 4, 6, 0, 0, 1);
    KRMtx33 out = sRegular;
    KRMtx33 expected;
    KRMtx33Transpose(&expected, &sRegular);
    EXPECT_EQ(KRMtx33InvTranspose(&out, &a), 0.0f);
    ExpectMatrixEq(out, expected);
}

TEST(Mtx33, ConcatMultipliesRowsOfTheFirstByColumnsOfTheSecond)
{
    KRMtx33 a = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRMtx33 b = M(9, 8, 7, 6, 5, 4, 3, 2, 1);
    KRMtx33 r;
    KRMtx33Concat(&r, &a, &b);
    ExpectMatrixEq(r, M(30, 24, 18, 84, 69, 54, 138, 114, 90));
}

TEST(Mtx33, ConcatAppliesTheSecondMatrixFirst)
{
    KRMtx33 trans;
    KRMtx33 scale;
    KRMtx33 r;
    KRVec2 p = V(1.0f, 1.0f);
    KRVec2 out;
    KRMtx33Trans(&trans, 10.0f, 20.0f);
    KRMtx33Scale(&scale, 2.0f, 3.0f);

    KRMtx33Concat(&r, &trans, &scale);
    KRMtx33MultVec(&out, &r, &p);
    EXPECT_EQ(out.x, 12.0f) << "scaled, then moved";
    EXPECT_EQ(out.y, 23.0f);

    KRMtx33Concat(&r, &scale, &trans);
    KRMtx33MultVec(&out, &r, &p);
    EXPECT_EQ(out.x, 22.0f) << "moved, then scaled";
    EXPECT_EQ(out.y, 63.0f);
}

TEST(Mtx33, ConcatMayWriteOverEitherOperand)
{
    KRMtx33 a = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRMtx33 b = M(9, 8, 7, 6, 5, 4, 3, 2, 1);
    KRMtx33 expected = M(30, 24, 18, 84, 69, 54, 138, 114, 90);

    KRMtx33 left = a;
    KRMtx33Concat(&left, &left, &b);
    ExpectMatrixEq(left, expected);

    KRMtx33 right = b;
    KRMtx33Concat(&right, &a, &right);
    ExpectMatrixEq(right, expected);

    KRMtx33 both = a;
    KRMtx33Concat(&both, &both, &both);
    ExpectMatrixEq(both, M(30, 36, 42, 66, 81, 96, 102, 126, 150));
}

TEST(Mtx33, OrthogonalizeChangesNothing)
{
    KRMtx33 out = sRegular;
    KRMtx33 in = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRMtx33Orthogonalize(&out, &in);
    ExpectMatrixEq(out, sRegular);
    ExpectMatrixEq(in, M(1, 2, 3, 4, 5, 6, 7, 8, 9));
}

TEST(Mtx33, SetColOfTheThirdColumnWritesOneInTheCorner)
{
    KRMtx33 m = M(9, 9, 9, 9, 9, 9, 9, 9, 9);
    KRVec2 v = V(5.0f, 6.0f);
    KRMtx33SetCol(&m, 2, &v);
    ExpectMatrixEq(m, M(9, 9, 5, 9, 9, 6, 9, 9, 1));
}

TEST(Mtx33, SetColOfTheFirstOrSecondColumnWritesZeroInTheBottomRow)
{
    KRMtx33 m = M(9, 9, 9, 9, 9, 9, 9, 9, 9);
    KRVec2 v = V(5.0f, 6.0f);
    KRMtx33SetCol(&m, 0, &v);
    ExpectMatrixEq(m, M(5, 9, 9, 6, 9, 9, 0, 9, 9));
    KRMtx33SetCol(&m, 1, &v);
    ExpectMatrixEq(m, M(5, 5, 9, 6, 6, 9, 0, 0, 9));
}

TEST(Mtx33, SetRowWritesOneAtTheEndOnlyForTheThirdRow)
{
    KRMtx33 m = M(9, 9, 9, 9, 9, 9, 9, 9, 9);
    KRVec2 v = V(5.0f, 6.0f);
    KRMtx33SetRow(&m, 1, &v);
    ExpectMatrixEq(m, M(9, 9, 9, 5, 6, 0, 9, 9, 9));
    KRMtx33SetRow(&m, 2, &v);
    ExpectMatrixEq(m, M(9, 9, 9, 5, 6, 0, 5, 6, 1));
}

TEST(Mtx33, GetColAndGetRowReadTheUpperTwoElements)
{
    KRMtx33 m = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRVec2 v;
    KRMtx33GetCol(&v, &m, 2);
    EXPECT_EQ(v.x, 3.0f);
    EXPECT_EQ(v.y, 6.0f);
    KRMtx33GetRow(&v, &m, 2);
    EXPECT_EQ(v.x, 7.0f);
    EXPECT_EQ(v.y, 8.0f);
}

TEST(Mtx33, TransPutsTheOffsetInTheThirdColumnOfAnIdentity)
{
    KRMtx33 m;
    KRMtx33Trans(&m, 3.0f, -4.0f);
    ExpectMatrixEq(m, M(1, 0, 3, 0, 1, -4, 0, 0, 1));
}

TEST(Mtx33, TransApplyAddsToTheExistingTranslation)
{
    KRMtx33 a = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRMtx33 r;
    KRMtx33TransApply(&r, &a, 10.0f, 20.0f);
    ExpectMatrixEq(r, M(1, 2, 13, 4, 5, 26, 7, 8, 9));
    KRMtx33TransApply(&a, &a, 10.0f, 20.0f);
    ExpectMatrixEq(a, M(1, 2, 13, 4, 5, 26, 7, 8, 9));
}

TEST(Mtx33, ScaleIsDiagonal)
{
    KRMtx33 m;
    KRMtx33Scale(&m, 2.0f, 3.0f);
    ExpectMatrixEq(m, M(2, 0, 0, 0, 3, 0, 0, 0, 1));
}

TEST(Mtx33, ScaleApplyScalesTheFirstTwoRowsAndCopiesTheThird)
{
    KRMtx33 a = M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    KRMtx33 r;
    KRMtx33ScaleApply(&r, &a, 2.0f, 10.0f);
    ExpectMatrixEq(r, M(2, 4, 6, 40, 50, 60, 7, 8, 9));
    KRMtx33ScaleApply(&a, &a, 2.0f, 10.0f);
    ExpectMatrixEq(a, M(2, 4, 6, 40, 50, 60, 7, 8, 9));
}

TEST(Mtx33, RotTurnsCounterClockwiseInAYUpWorld)
{
    KRMtx33 m;
    KRVec2 p = V(1.0f, 0.0f);
    KRVec2 out;
    KRMtx33Rot(&m, 1.5707964f);
    KRMtx33MultVec(&out, &m, &p);
    EXPECT_NEAR(out.x, 0.0f, 1e-6f);
    EXPECT_NEAR(out.y, 1.0f, 1e-6f);
    EXPECT_EQ(m.m[0][1], -m.m[1][0]);
    EXPECT_EQ(m.m[2][2], 1.0f);
    EXPECT_EQ(m.m[0][2], 0.0f);
}

TEST(Mtx33, RotDegOf180UsesTheFourDecimalPi)
{
    KRMtx33 m;
    KRMtx33RotDeg(&m, 180.0f);
    // cos(3.1415f) rounds to -1.0f in 32 bits; the shortened pi shows in the sine, which a
    // true half turn would leave within a few ulps of zero.
    EXPECT_EQ(FloatBits(m.m[0][0]), FloatBits(cosf(3.1415f)));
    EXPECT_EQ(FloatBits(m.m[1][0]), FloatBits(sinf(180.0f * 3.1415f / 180.0f)));
    EXPECT_NEAR(m.m[1][0], 9.29e-5f, 0.01e-5f);
    EXPECT_EQ(m.m[0][1], -m.m[1][0]);
}

TEST(Mtx33, RotDegMultipliesByPiBeforeDividingBy180)
{
    KRMtx33 deg;
    KRMtx33 rad;
    // 180 * 3.1415f / 180 is 3.1414998f, one unit below 3.1415f.
    ASSERT_NE(FloatBits(180.0f * 3.1415f / 180.0f), FloatBits(3.1415f));
    for (float d : {180.0f, 90.0f, 33.0f, -45.0f})
    {
        KRMtx33RotDeg(&deg, d);
        KRMtx33Rot(&rad, d * 3.1415f / 180.0f);
        ExpectMatrixEq(deg, rad);
    }
}

TEST(Mtx33, MultVecTransformsAPointWithTranslation)
{
    KRMtx33 m = M(1, 2, 3, 4, 5, 6, 0, 0, 1);
    KRVec2 p = V(10.0f, 100.0f);
    KRVec2 out;
    KRMtx33MultVec(&out, &m, &p);
    EXPECT_EQ(out.x, 213.0f);
    EXPECT_EQ(out.y, 546.0f);
    KRMtx33MultVec(&p, &m, &p);
    EXPECT_EQ(p.x, 213.0f) << "safe when the result is the input";
    EXPECT_EQ(p.y, 546.0f);
}

TEST(Mtx33, MultVecSRLeavesTheTranslationOut)
{
    KRMtx33 m = M(1, 2, 3, 4, 5, 6, 0, 0, 1);
    KRVec2 p = V(10.0f, 100.0f);
    KRMtx33MultVecSR(&p, &m, &p);
    EXPECT_EQ(p.x, 210.0f);
    EXPECT_EQ(p.y, 540.0f);
}

TEST(Mtx33, MultVecArrayTransformsEveryVector)
{
    KRMtx33 m;
    KRMtx33Trans(&m, 1.0f, 2.0f);
    KRVec2 in[3] = {V(0, 0), V(1, 1), V(-5, 5)};
    KRVec2 out[4] = {V(9, 9), V(9, 9), V(9, 9), V(9, 9)};
    KRMtx33MultVecArray(out, &m, in, 3);
    EXPECT_EQ(out[0].x, 1.0f);
    EXPECT_EQ(out[0].y, 2.0f);
    EXPECT_EQ(out[1].x, 2.0f);
    EXPECT_EQ(out[1].y, 3.0f);
    EXPECT_EQ(out[2].x, -4.0f);
    EXPECT_EQ(out[2].y, 7.0f);
    EXPECT_EQ(out[3].x, 9.0f) << "only count vectors are written";
}

TEST(Mtx33, MultVecArraySRScalesAndRotatesEveryVectorWithoutMoving)
{
    KRMtx33 m = M(2, 0, 50, 0, 3, 60, 0, 0, 1);
    KRVec2 v[2] = {V(1, 1), V(-2, 4)};
    KRMtx33MultVecArraySR(v, &m, v, 2);
    EXPECT_EQ(v[0].x, 2.0f);
    EXPECT_EQ(v[0].y, 3.0f);
    EXPECT_EQ(v[1].x, -4.0f);
    EXPECT_EQ(v[1].y, 12.0f);
}
