// Vector4.h -- a direction of four floats for the homogeneous 3D math; default (0, 0, 0, 0).
#ifndef KR_VECTOR4_H
#define KR_VECTOR4_H

#include "KRTypes.h"

class Vector4
{
public:
    f32 x;
    f32 y;
    f32 z;
    f32 w;

    Vector4();
    Vector4(const Vector4& rhs);
    Vector4(f32 xx, f32 yy, f32 zz, f32 ww);

    Vector4& operator=(const Vector4& rhs);

    Vector4 operator-() const;
    Vector4 operator+(const Vector4& rhs) const;
    Vector4 operator-(const Vector4& rhs) const;
    Vector4 operator*(f32 rhs) const;
    // Multiplies by the reciprocal.
    Vector4 operator/(f32 rhs) const;

    Vector4& operator+=(const Vector4& rhs);
    Vector4& operator-=(const Vector4& rhs);
    Vector4& operator*=(f32 rhs);
    // Multiplies by the reciprocal.
    Vector4& operator/=(f32 rhs);

    // Every component closer than 1e-5.
    bool operator==(const Vector4& rhs) const;
    bool operator!=(const Vector4& rhs) const;

    // x, y and z only.
    f32 Dot(const Vector4& rhs) const;
    // x, y and z only; the result has w 0.
    Vector4 Cross(const Vector4& rhs) const;
    // All four components.
    f32 Length() const;
    f32 LengthSq() const;
    // Divides all four components by the length; a length within 1e-5 of zero leaves it as is.
    void Normalize();
    void Zero();
    void Print() const;
};

#endif // KR_VECTOR4_H
