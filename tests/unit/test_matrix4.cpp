// test_matrix4.cpp -- behaviour of Point4, Vector4, Matrix4 and the Matrix4 builders.
#include "Matrix4.h"
#include "Point4.h"
#include "Vector4.h"

#include "float_bits.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

static Matrix4 Identity4()
{
    Matrix4 m;
    m.Identity();
    return m;
}

static void ExpectMatrixEq(const Matrix4& a, const Matrix4& b)
{
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(a.m[r][c], b.m[r][c]) << "element [" << r << "][" << c << "]";
}

static void ExpectMatrixNear(const Matrix4& a, const Matrix4& b, float tol)
{
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_NEAR(a.m[r][c], b.m[r][c], tol) << "element [" << r << "][" << c << "]";
}

static const Matrix4 sSample(1, 2, 3, 4,
                             5, 6, 7, 8,
                             9, 10, 11, 12,
                             13, 14, 15, 16);

// ---- Point4 ---------------------------------------------------------------------------------

TEST(Point4, DefaultPointIsTheOriginWithWOne)
{
    Point4 p;
    EXPECT_EQ(p.x, 0.0f);
    EXPECT_EQ(p.y, 0.0f);
    EXPECT_EQ(p.z, 0.0f);
    EXPECT_EQ(p.w, 1.0f);
}

TEST(Point4, ConstructorsAndAssignmentCopyAllFourComponents)
{
    Point4 p(1.0f, 2.0f, 3.0f, 4.0f);
    Point4 q(p);
    Point4 r;
    r = q;
    EXPECT_EQ(r.x, 1.0f);
    EXPECT_EQ(r.y, 2.0f);
    EXPECT_EQ(r.z, 3.0f);
    EXPECT_EQ(r.w, 4.0f);
}

TEST(Point4, DifferenceOfTwoDefaultPointsHasWZero)
{
    Point4 a;
    Point4 b;
    Vector4 d = a - b;
    EXPECT_EQ(d.w, 0.0f);
    Vector4 e = Point4(5, 7, 9, 1) - Point4(1, 2, 3, 1);
    EXPECT_EQ(e.x, 4.0f);
    EXPECT_EQ(e.y, 5.0f);
    EXPECT_EQ(e.z, 6.0f);
    EXPECT_EQ(e.w, 0.0f);
}

TEST(Point4, UnaryMinusOfADefaultPointHasWMinusOne)
{
    Point4 p;
    Point4 n = -p;
    EXPECT_EQ(n.w, -1.0f);
    Point4 m = -Point4(1, -2, 3, 1);
    EXPECT_EQ(m.x, -1.0f);
    EXPECT_EQ(m.y, 2.0f);
    EXPECT_EQ(m.z, -3.0f);
}

TEST(Point4, AddingAndSubtractingAVectorMovesThePoint)
{
    Point4 p(1, 2, 3, 1);
    Vector4 v(10, 20, 30, 0);
    Point4 a = p + v;
    EXPECT_EQ(a, Point4(11, 22, 33, 1));
    Point4 s = p - v;
    EXPECT_EQ(s, Point4(-9, -18, -27, 1));
    p += v;
    EXPECT_EQ(p, Point4(11, 22, 33, 1));
    p -= v;
    p -= v;
    EXPECT_EQ(p, Point4(-9, -18, -27, 1));
    Point4 w = Point4() + Vector4(0, 0, 0, 2);
    EXPECT_EQ(w.w, 3.0f) << "w is added like the others";
}

TEST(Point4, PointsCloserThanTheToleranceAreEqual)
{
    EXPECT_TRUE(Point4(1, 2, 3, 1) == Point4(1.000001f, 2, 3, 1));
    EXPECT_FALSE(Point4(1, 2, 3, 1) != Point4(1.000001f, 2, 3, 1));
    EXPECT_FALSE(Point4(0, 0, 0, 1) == Point4(0, 0, 0, 1.00002f));
    EXPECT_TRUE(Point4(0, 0, 0, 1) != Point4(0, 0, 1e-5f, 1));
}

TEST(Point4, ZeroResetsToTheOriginWithWOne)
{
    Point4 p(4, 5, 6, 7);
    p.Zero();
    EXPECT_EQ(p.x, 0.0f);
    EXPECT_EQ(p.y, 0.0f);
    EXPECT_EQ(p.z, 0.0f);
    EXPECT_EQ(p.w, 1.0f);
}

TEST(Point4, PrintWritesFourCommaSeparatedComponents)
{
    testing::internal::CaptureStdout();
    Point4(1.0f, -2.5f, 0.125f, 1.0f).Print();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "1.000, -2.500, 0.125, 1.000\n");
}

// ---- Vector4 --------------------------------------------------------------------------------

TEST(Vector4, DefaultVectorIsAllZero)
{
    Vector4 v;
    EXPECT_EQ(v.x, 0.0f);
    EXPECT_EQ(v.y, 0.0f);
    EXPECT_EQ(v.z, 0.0f);
    EXPECT_EQ(v.w, 0.0f);
}

TEST(Vector4, ArithmeticWorksOnAllFourComponents)
{
    Vector4 a(1, 2, 3, 4);
    Vector4 b(10, 20, 30, 40);
    EXPECT_EQ(a + b, Vector4(11, 22, 33, 44));
    EXPECT_EQ(b - a, Vector4(9, 18, 27, 36));
    EXPECT_EQ(-a, Vector4(-1, -2, -3, -4));
    EXPECT_EQ(a * 2.0f, Vector4(2, 4, 6, 8));
    EXPECT_EQ(b / 10.0f, Vector4(1, 2, 3, 4));

    Vector4 c(a);
    c += b;
    EXPECT_EQ(c, Vector4(11, 22, 33, 44));
    c -= a;
    EXPECT_EQ(c, b);
    c *= 0.5f;
    EXPECT_EQ(c, Vector4(5, 10, 15, 20));
    c /= 5.0f;
    EXPECT_EQ(c, Vector4(1, 2, 3, 4));
}

TEST(Vector4, DivisionMultipliesByTheReciprocal)
{
    ASSERT_NE(FloatBits(5.0f / 3.0f), FloatBits(5.0f * (1.0f / 3.0f)));
    Vector4 v = Vector4(5, 10, 5, 5) / 3.0f;
    EXPECT_EQ(FloatBits(v.x), FloatBits(5.0f * (1.0f / 3.0f)));
    EXPECT_EQ(FloatBits(v.y), FloatBits(10.0f * (1.0f / 3.0f)));
    Vector4 w(5, 10, 5, 5);
    w /= 3.0f;
    EXPECT_EQ(FloatBits(w.x), FloatBits(5.0f * (1.0f / 3.0f)));
}

TEST(Vector4, VectorsDifferingByExactlyTheToleranceAreNotEqual)
{
    Vector4 a(0, 0, 0, 0);
    Vector4 b(0, 1e-5f, 0, 0);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(Vector4, VectorsDifferingByLessThanTheToleranceAreEqual)
{
    Vector4 a(1, 2, 3, 4);
    Vector4 b(1, 2, 3.000005f, 4);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(Vector4, DotUsesXYZOnly)
{
    Vector4 a(1, 2, 3, 100);
    Vector4 b(4, 5, 6, 100);
    EXPECT_EQ(a.Dot(b), 32.0f);
}

TEST(Vector4, CrossIsRightHandedAndHasWZero)
{
    Vector4 x(1, 0, 0, 7);
    Vector4 y(0, 1, 0, 7);
    Vector4 z = x.Cross(y);
    EXPECT_EQ(z, Vector4(0, 0, 1, 0));
    EXPECT_EQ(y.Cross(x), Vector4(0, 0, -1, 0));
    EXPECT_EQ(Vector4(1, 2, 3, 0).Cross(Vector4(4, 5, 6, 0)), Vector4(-3, 6, -3, 0));
}

TEST(Vector4, LengthUsesAllFourComponents)
{
    Vector4 v(1, 2, 2, 4);
    EXPECT_EQ(v.LengthSq(), 25.0f);
    EXPECT_EQ(v.Length(), 5.0f);
}

TEST(Vector4, NormalizeDividesAllFourComponentsByTheLength)
{
    Vector4 v(1, 2, 2, 4);
    v.Normalize();
    EXPECT_EQ(FloatBits(v.x), FloatBits(1.0f / 5.0f));
    EXPECT_EQ(FloatBits(v.y), FloatBits(2.0f / 5.0f));
    EXPECT_EQ(FloatBits(v.w), FloatBits(4.0f / 5.0f));
    EXPECT_FLOAT_EQ(v.Length(), 1.0f);
}

TEST(Vector4, NormalizeOfAZeroVectorLeavesItZero)
{
    Vector4 v;
    v.Normalize();
    EXPECT_EQ(v.x, 0.0f);
    EXPECT_EQ(v.y, 0.0f);
    EXPECT_EQ(v.z, 0.0f);
    EXPECT_EQ(v.w, 0.0f);
    EXPECT_FALSE(std::isnan(v.x));
}

TEST(Vector4, NormalizeOfAVectorShorterThanTheToleranceLeavesItAsItIs)
{
    Vector4 v(3e-6f, 4e-6f, 0, 0);
    v.Normalize();
    EXPECT_EQ(v.x, 3e-6f);
    EXPECT_EQ(v.y, 4e-6f);
}

TEST(Vector4, ZeroSetsAllFourComponentsToZero)
{
    Vector4 v(1, 2, 3, 4);
    v.Zero();
    EXPECT_EQ(v.x, 0.0f);
    EXPECT_EQ(v.w, 0.0f);
}

TEST(Vector4, PrintWritesFourCommaSeparatedComponents)
{
    testing::internal::CaptureStdout();
    Vector4(1.0f, 2.0f, 3.0f, 0.0f).Print();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "1.000, 2.000, 3.000, 0.000\n");
}

// ---- Matrix4 --------------------------------------------------------------------------------

TEST(Matrix4, DefaultMatrixIsAllZeroNotTheIdentity)
{
    Matrix4 m;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(m.m[r][c], 0.0f);
}

TEST(Matrix4, SixteenFloatConstructorFillsRowByRow)
{
    EXPECT_EQ(sSample.m[0][1], 2.0f);
    EXPECT_EQ(sSample.m[1][0], 5.0f);
    EXPECT_EQ(sSample.m[2][3], 12.0f);
    EXPECT_EQ(sSample.m[3][3], 16.0f);
    Matrix4 copy(sSample);
    Matrix4 assigned;
    assigned = copy;
    ExpectMatrixEq(assigned, sSample);
}

TEST(Matrix4, IdentityAndZeroSetTheWholeMatrix)
{
    Matrix4 m(sSample);
    m.Identity();
    ExpectMatrixEq(m, Matrix4(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
    m.Zero();
    ExpectMatrixEq(m, Matrix4());
}

TEST(Matrix4, TimesAVectorLeavesTranslationOutWhenWIsZero)
{
    Vector4 move(10, 20, 30, 0);
    Matrix4 t = Matrix4Translate(&move);
    EXPECT_EQ(t * Vector4(1, 2, 3, 0), Vector4(1, 2, 3, 0));
    EXPECT_EQ(t * Vector4(1, 2, 3, 1), Vector4(11, 22, 33, 1));
    EXPECT_EQ(sSample * Vector4(1, 0, 0, 0), Vector4(1, 5, 9, 13)) << "first column";
}

TEST(Matrix4, TimesAPointAppliesTheTranslation)
{
    Vector4 move(10, 20, 30, 0);
    Matrix4 t = Matrix4Translate(&move);
    EXPECT_EQ(t * Point4(1, 2, 3, 1), Point4(11, 22, 33, 1));
    Point4 p = sSample * Point4(1, 1, 1, 1);
    EXPECT_EQ(p, Point4(10, 26, 42, 58));
}

TEST(Matrix4, ProductAppliesTheRightHandMatrixFirst)
{
    Vector4 move(10, 0, 0, 0);
    Matrix4 t = Matrix4Translate(&move);
    Matrix4 s = Matrix4Scale(2, 2, 2);
    EXPECT_EQ((t * s) * Point4(1, 0, 0, 1), Point4(12, 0, 0, 1)) << "scaled, then moved";
    EXPECT_EQ((s * t) * Point4(1, 0, 0, 1), Point4(22, 0, 0, 1)) << "moved, then scaled";
}

TEST(Matrix4, ProductSumsRowsTimesColumns)
{
    Matrix4 p = sSample * sSample;
    ExpectMatrixEq(p, Matrix4(90, 100, 110, 120,
                              202, 228, 254, 280,
                              314, 356, 398, 440,
                              426, 484, 542, 600));
    Matrix4 q(sSample);
    q *= sSample;
    ExpectMatrixEq(q, p);
    ExpectMatrixEq(Identity4() * sSample, sSample);
}

TEST(Matrix4, ScalarOperatorsWorkOnEveryElement)
{
    Matrix4 twice = sSample * 2.0f;
    EXPECT_EQ(twice.m[3][3], 32.0f);
    EXPECT_EQ(twice.m[0][1], 4.0f);
    Matrix4 half = sSample / 2.0f;
    EXPECT_EQ(half.m[1][0], 2.5f);
    Matrix4 m(sSample);
    m *= 3.0f;
    EXPECT_EQ(m.m[2][2], 33.0f);
    m /= 3.0f;
    EXPECT_TRUE(m == sSample);
    Matrix4 thirds = Identity4() * 5.0f / 3.0f;
    EXPECT_EQ(FloatBits(thirds.m[0][0]), FloatBits(5.0f * (1.0f / 3.0f)));
}

TEST(Matrix4, SumAndDifferenceWorkOnEveryElement)
{
    Matrix4 sum = sSample + Identity4();
    EXPECT_EQ(sum.m[0][0], 2.0f);
    EXPECT_EQ(sum.m[0][1], 2.0f);
    EXPECT_EQ(sum.m[3][3], 17.0f);
    Matrix4 diff = sum - sSample;
    ExpectMatrixEq(diff, Identity4());
    Matrix4 m(sSample);
    m += sSample;
    ExpectMatrixEq(m, sSample * 2.0f);
    m -= sSample;
    ExpectMatrixEq(m, sSample);
}

TEST(Matrix4, MatricesAreEqualWhenEveryElementIsWithinTheTolerance)
{
    Matrix4 close(sSample);
    close.m[2][1] += 0.000004f;
    EXPECT_TRUE(close == sSample);
    EXPECT_FALSE(close != sSample);
    Matrix4 apart = Identity4();
    apart.m[3][0] = 1e-5f;
    EXPECT_FALSE(apart == Identity4());
    EXPECT_TRUE(apart != Identity4());
}

TEST(Matrix4, PrintWritesFourRowsBetweenDashes)
{
    testing::internal::CaptureStdout();
    sSample.Print();
    std::string dashes = "--------------------------\n";
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              dashes + "1.000 2.000 3.000 4.000\n5.000 6.000 7.000 8.000\n"
                       "9.000 10.000 11.000 12.000\n13.000 14.000 15.000 16.000\n" +
                  dashes);
}

TEST(Matrix4, OrthoOf800By600FromOneTo1000ScalesDepthByMinusTwoOver999)
{
    float w = 800.0f, h = 600.0f, n = 1.0f, f = 1000.0f;
    Matrix4 m = Matrix4Ortho(&w, &h, &n, &f);
    EXPECT_EQ(FloatBits(m.m[2][2]), FloatBits(-2.0f / 999.0f));
    EXPECT_EQ(FloatBits(m.m[0][0]), FloatBits(2.0f / 800.0f));
    EXPECT_EQ(FloatBits(m.m[1][1]), FloatBits(2.0f / 600.0f));
    EXPECT_EQ(FloatBits(m.m[2][3]), FloatBits(-1001.0f / 999.0f));
    EXPECT_EQ(m.m[3][3], 1.0f);
    EXPECT_EQ(m.m[0][3], 0.0f);
    EXPECT_EQ(m.m[1][3], 0.0f);
    EXPECT_EQ(m.m[3][2], 0.0f);
    Point4 corner = m * Point4(400, 300, -1, 1);
    EXPECT_FLOAT_EQ(corner.x, 1.0f);
    EXPECT_FLOAT_EQ(corner.y, 1.0f);
    EXPECT_FLOAT_EQ(corner.z, -1.0f) << "the near plane maps to -1";
}

TEST(Matrix4, PerspectiveUsesTheHalfAngleTangent)
{
    float fov = 90.0f, aspect = 2.0f, n = 1.0f, f = 10.0f;
    Matrix4 m = Matrix4Perspective(&fov, &aspect, &n, &f);
    float h = tanf(90.0f / 360.0f * 3.1415925f);
    EXPECT_EQ(FloatBits(m.m[0][0]), FloatBits(1.0f / (h * 2.0f)));
    EXPECT_EQ(FloatBits(m.m[1][1]), FloatBits(1.0f / h));
    EXPECT_NEAR(m.m[1][1], 1.0f, 1e-6f);
    EXPECT_EQ(FloatBits(m.m[2][2]), FloatBits(-11.0f / 9.0f));
    EXPECT_EQ(FloatBits(m.m[2][3]), FloatBits(-20.0f / 9.0f));
    EXPECT_EQ(m.m[3][2], -1.0f);
    EXPECT_EQ(m.m[3][3], 0.0f);
    EXPECT_EQ(m.m[0][1], 0.0f);
}

TEST(Matrix4, LookAtOfTheGameCameraIsATranslationByTheNegatedEye)
{
    Point4 eye(120.0f, -45.0f, 60.0f, 1.0f);
    Point4 target(120.0f, -45.0f, 0.0f, 1.0f);
    Vector4 up(0, 1, 0, 0);
    Matrix4 view = Matrix4LookAt(eye, target, up);
    Vector4 back(-120.0f, 45.0f, -60.0f, 0.0f);
    ExpectMatrixEq(view, Matrix4Translate(&back));
    EXPECT_EQ(view * Point4(120.0f, -45.0f, 0.0f, 1.0f), Point4(0, 0, -60, 1));
}

TEST(Matrix4, LookAtTurnsTheWorldSoTheCameraLooksDownMinusZ)
{
    Point4 eye(10, 0, 0, 1);
    Point4 target(0, 0, 0, 1);
    Vector4 up(0, 1, 0, 0);
    Matrix4 view = Matrix4LookAt(eye, target, up);
    EXPECT_EQ(view * Point4(0, 0, 0, 1), Point4(0, 0, -10, 1));
    EXPECT_EQ(view * Point4(0, 5, 0, 1), Point4(0, 5, -10, 1));
    EXPECT_EQ(view * Point4(0, 0, -3, 1), Point4(3, 0, -10, 1)) << "-z of the world is to the right";
}

TEST(Matrix4, LookAtDoesNotMakeUpPerpendicularToTheViewDirection)
{
    Point4 eye(0, 0, 10, 1);
    Point4 target(0, 0, 0, 1);
    Vector4 up(0, 1, 1, 0);
    Matrix4 view = Matrix4LookAt(eye, target, up);
    float s = 1.0f / sqrtf(2.0f);
    EXPECT_NEAR(view.m[1][1], s, 1e-6f) << "the second row is up as given, normalised";
    EXPECT_NEAR(view.m[1][2], s, 1e-6f);
    EXPECT_NEAR(view.m[0][0], 1.0f, 1e-6f);
    EXPECT_NEAR(view.m[2][2], 1.0f, 1e-6f);
}

TEST(Matrix4, TransposedSwapsRowsAndColumns)
{
    Matrix4 t = Matrix4Transposed(sSample);
    EXPECT_EQ(t.m[0][1], 5.0f);
    EXPECT_EQ(t.m[1][0], 2.0f);
    EXPECT_EQ(t.m[3][0], 4.0f);
    EXPECT_EQ(t.m[0][3], 13.0f);
    ExpectMatrixEq(Matrix4Transposed(t), sSample);
}

TEST(Matrix4, FromBasisNormalisesTheVectorsAndPutsThemInColumns)
{
    Vector4 x(2, 0, 0, 0);
    Vector4 y(0, 0, 3, 0);
    Vector4 z(0, -4, 0, 0);
    Matrix4 m = Matrix4FromBasis(&x, &y, &z);
    EXPECT_EQ(x, Vector4(1, 0, 0, 0)) << "normalised in place";
    EXPECT_EQ(y, Vector4(0, 0, 1, 0));
    EXPECT_EQ(z, Vector4(0, -1, 0, 0));
    ExpectMatrixEq(m, Matrix4(1, 0, 0, 0,
                              0, 0, -1, 0,
                              0, 1, 0, 0,
                              0, 0, 0, 1));
}

TEST(Matrix4, TranslatePutsTheVectorInTheLastColumnOfAnIdentity)
{
    Vector4 v(3, 4, 5, 9);
    ExpectMatrixEq(Matrix4Translate(&v), Matrix4(1, 0, 0, 3,
                                                 0, 1, 0, 4,
                                                 0, 0, 1, 5,
                                                 0, 0, 0, 1));
}

TEST(Matrix4, ScaleFromFloatsOrAVectorIsDiagonal)
{
    Matrix4 expected(2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1);
    ExpectMatrixEq(Matrix4Scale(2, 3, 4), expected);
    ExpectMatrixEq(Matrix4Scale(Vector4(2, 3, 4, 9)), expected);
}

TEST(Matrix4, RotationsAreRightHanded)
{
    float quarter = 1.5707964f;
    Matrix4 rx = Matrix4RotX(&quarter);
    Matrix4 ry = Matrix4RotY(&quarter);
    Matrix4 rz = Matrix4RotZ(&quarter);
    EXPECT_EQ(rz * Vector4(1, 0, 0, 0), Vector4(0, 1, 0, 0)) << "z turns x into y";
    EXPECT_EQ(rx * Vector4(0, 1, 0, 0), Vector4(0, 0, 1, 0)) << "x turns y into z";
    EXPECT_EQ(ry * Vector4(0, 0, 1, 0), Vector4(1, 0, 0, 0)) << "y turns z into x";
    EXPECT_EQ(rx.m[0][0], 1.0f);
    EXPECT_EQ(ry.m[1][1], 1.0f);
    EXPECT_EQ(rz.m[2][2], 1.0f);
    EXPECT_EQ(rz.m[3][3], 1.0f);
}

TEST(Matrix4, AxisAngleAboutAnAxisMatchesTheMatchingRotation)
{
    float angle = 0.7f;
    ExpectMatrixNear(Matrix4AxisAngle(Vector4(0, 0, 5, 0), &angle), Matrix4RotZ(&angle), 1e-6f);
    ExpectMatrixNear(Matrix4AxisAngle(Vector4(1, 0, 0, 0), &angle), Matrix4RotX(&angle), 1e-6f);
    ExpectMatrixNear(Matrix4AxisAngle(Vector4(0, 2, 0, 0), &angle), Matrix4RotY(&angle), 1e-6f);
}

TEST(Matrix4, AxisAngleAboutTheDiagonalCyclesTheAxes)
{
    float third = 2.0943952f;
    Matrix4 m = Matrix4AxisAngle(Vector4(1, 1, 1, 0), &third);
    EXPECT_EQ(m * Vector4(1, 0, 0, 0), Vector4(0, 1, 0, 0));
    EXPECT_EQ(m * Vector4(0, 1, 0, 0), Vector4(0, 0, 1, 0));
}

TEST(Matrix4, AxisAngleWithAZeroAxisIsTheIdentity)
{
    float angle = 1.0f;
    ExpectMatrixEq(Matrix4AxisAngle(Vector4(0, 0, 0, 0), &angle), Identity4());
}

TEST(Matrix4, DeterminantOfDiagonalIsTheProductAndRowSwapNegatesIt)
{
    EXPECT_EQ(Matrix4Determinant(Matrix4Scale(2, 3, 4)), 24.0f);
    EXPECT_EQ(Matrix4Determinant(sSample), 0.0f);
    Matrix4 m(2, 0, 1, 0,
              1, 3, 0, 0,
              0, 1, 4, 1,
              1, 0, 0, 2);
    EXPECT_EQ(Matrix4Determinant(m), 53.0f);
    Matrix4 swapped(1, 3, 0, 0,
                    2, 0, 1, 0,
                    0, 1, 4, 1,
                    1, 0, 0, 2);
    EXPECT_EQ(Matrix4Determinant(swapped), -53.0f);
}

TEST(Matrix4, AffineInverseDividesByTheSquaredColumnLengths)
{
    Matrix4 m = Matrix4Scale(2, 4, 8);
    Matrix4 inv = Matrix4AffineInverse(m);
    EXPECT_EQ(inv.m[0][0], 0.5f);
    EXPECT_EQ(inv.m[2][2], 0.125f);
    EXPECT_EQ(inv.m[3][3], 1.0f);
    EXPECT_EQ(inv.m[0][3], 0.0f);
}

TEST(Matrix4, AffineInverseTakesTheMiddleElementFromTheRowBelow)
{
    Matrix4 m = Matrix4Scale(2, 4, 8);
    Matrix4 inv = Matrix4AffineInverse(m);
    EXPECT_EQ(inv.m[1][1], 0.0f) << "m[2][1] / 16, not m[1][1] / 16";

    Matrix4 slanted = Identity4();
    slanted.m[2][1] = 3.0f;
    Matrix4 inv2 = Matrix4AffineInverse(slanted);
    EXPECT_EQ(FloatBits(inv2.m[1][1]), FloatBits(3.0f / 10.0f));
    EXPECT_EQ(FloatBits(inv2.m[2][1]), FloatBits(3.0f / 10.0f));
}

TEST(Matrix4, AffineInversePutsTheUndoneTranslationInTheBottomRow)
{
    Matrix4 m = Matrix4Scale(2, 1, 4);
    m.m[0][3] = 6.0f;
    m.m[1][3] = -3.0f;
    m.m[2][3] = 8.0f;
    Matrix4 inv = Matrix4AffineInverse(m);
    // Columns of the 3 by 3 part over their squared lengths: 2/4, 0 (the slip), 4/16.
    EXPECT_EQ(inv.m[3][0], -3.0f);
    EXPECT_EQ(inv.m[3][1], 0.0f);
    EXPECT_EQ(inv.m[3][2], -2.0f);
    EXPECT_EQ(inv.m[0][3], 0.0f);
    EXPECT_EQ(inv.m[1][3], 0.0f);
    EXPECT_EQ(inv.m[2][3], 0.0f);
    EXPECT_EQ(inv.m[3][3], 1.0f);
}

TEST(Matrix4, AffineInverseOfATransposedScaledRotationIsItsInverseButForTheSlip)
{
    float angle = 0.5f;
    float back = -0.5f;
    Matrix4 m = Matrix4Scale(2, 3, 1) * Matrix4RotZ(&angle);
    Matrix4 inv = Matrix4AffineInverse(Matrix4Transposed(m));
    Matrix4 expected = Matrix4RotZ(&back) * Matrix4Scale(0.5f, 1.0f / 3.0f, 1);
    EXPECT_EQ(inv.m[1][1], 0.0f) << "taken from the element below, which is 0 here";
    inv.m[1][1] = expected.m[1][1];
    ExpectMatrixNear(inv, expected, 1e-6f);
}
