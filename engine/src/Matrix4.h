// Matrix4.h -- the 4 by 4 matrix of the homogeneous 3D math and its free functions.
//
// Row-major, m[row][column], default all zero (not the identity). Vectors and points are
// columns multiplied on the right, so translation sits in the last column; Matrix4Transposed
// turns a matrix into the layout OpenGL expects. The free functions return their result.
#ifndef KR_MATRIX4_H
#define KR_MATRIX4_H

#include "KRTypes.h"
#include "Point4.h"
#include "Vector4.h"

class Matrix4
{
public:
    f32 m[4][4];

    Matrix4();
    Matrix4(const Matrix4& rhs);
    Matrix4(f32 m00, f32 m01, f32 m02, f32 m03,
            f32 m10, f32 m11, f32 m12, f32 m13,
            f32 m20, f32 m21, f32 m22, f32 m23,
            f32 m30, f32 m31, f32 m32, f32 m33);

    Matrix4& operator=(const Matrix4& rhs);

    Vector4 operator*(const Vector4& rhs) const;
    Point4 operator*(const Point4& rhs) const;
    Matrix4 operator*(const Matrix4& rhs) const;
    Matrix4 operator*(f32 rhs) const;
    // Multiplies by the reciprocal.
    Matrix4 operator/(f32 rhs) const;
    Matrix4 operator+(const Matrix4& rhs) const;
    Matrix4 operator-(const Matrix4& rhs) const;

    Matrix4& operator+=(const Matrix4& rhs);
    Matrix4& operator-=(const Matrix4& rhs);
    // this = this * rhs
    Matrix4& operator*=(const Matrix4& rhs);
    Matrix4& operator*=(f32 rhs);
    Matrix4& operator/=(f32 rhs);

    // Every element closer than 1e-5.
    bool operator==(const Matrix4& rhs) const;
    bool operator!=(const Matrix4& rhs) const;

    void Zero();
    void Identity();
    void Print() const;
};

// Orthographic projection of a width by height view between the near and far planes.
Matrix4 Matrix4Ortho(const f32* pWidth, const f32* pHeight, const f32* pNear, const f32* pFar);
// Perspective projection; the field of view is vertical, in degrees.
Matrix4 Matrix4Perspective(const f32* pFovDeg, const f32* pAspect, const f32* pNear,
                           const f32* pFar);
// View matrix of a camera at eye looking at target; up is not re-orthogonalised.
Matrix4 Matrix4LookAt(const Point4& eye, const Point4& target, const Vector4& up);
Matrix4 Matrix4Transposed(const Matrix4& mtx);
// Normalises the three vectors in place and puts them in the first three columns of an identity.
Matrix4 Matrix4FromBasis(Vector4* pX, Vector4* pY, Vector4* pZ);
Matrix4 Matrix4Translate(const Vector4* pVec);
Matrix4 Matrix4Scale(f32 x, f32 y, f32 z);
Matrix4 Matrix4Scale(const Vector4& vec);
// Right-handed rotations, angle in radians.
Matrix4 Matrix4RotX(const f32* pAngle);
Matrix4 Matrix4RotY(const f32* pAngle);
Matrix4 Matrix4RotZ(const f32* pAngle);
// Rotation about an axis through the origin; an axis of no length gives the identity.
Matrix4 Matrix4AxisAngle(const Vector4& axis, const f32* pAngle);
f32 Matrix4Determinant(const Matrix4& mtx);
// Inverse of a rotation with scale and translation, in the transposed layout.
Matrix4 Matrix4AffineInverse(const Matrix4& mtx);

#endif // KR_MATRIX4_H
