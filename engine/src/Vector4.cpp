// Vector4.cpp -- the four-float direction of the homogeneous 3D math: arithmetic, dot and cross
// products, lengths and normalisation.
//
// Owns:    nothing but code; a plain value type.
// Read by: Point4, Matrix4 and the graphics frame's view matrix.
#include "Vector4.h"

#include "KRMath.h"

#include <cmath>
#include <cstdio>

Vector4::Vector4() : x(0.0f), y(0.0f), z(0.0f), w(0.0f)
{
}

Vector4::Vector4(const Vector4& rhs) : x(rhs.x), y(rhs.y), z(rhs.z), w(rhs.w)
{
}

Vector4::Vector4(f32 xx, f32 yy, f32 zz, f32 ww) : x(xx), y(yy), z(zz), w(ww)
{
}

Vector4& Vector4::operator=(const Vector4& rhs)
{
    x = rhs.x;
    y = rhs.y;
    z = rhs.z;
    w = rhs.w;
    return *this;
}

Vector4 Vector4::operator-() const
{
    return Vector4(-x, -y, -z, -w);
}

Vector4 Vector4::operator+(const Vector4& rhs) const
{
    return Vector4(x + rhs.x, y + rhs.y, z + rhs.z, w + rhs.w);
}

Vector4 Vector4::operator-(const Vector4& rhs) const
{
    return Vector4(x - rhs.x, y - rhs.y, z - rhs.z, w - rhs.w);
}

Vector4 Vector4::operator*(f32 rhs) const
{
    return Vector4(x * rhs, y * rhs, z * rhs, w * rhs);
}

Vector4 Vector4::operator/(f32 rhs) const
{
    f32 inv = 1.0f / rhs;
    return Vector4(x * inv, y * inv, z * inv, w * inv);
}

Vector4& Vector4::operator+=(const Vector4& rhs)
{
    *this = *this + rhs;
    return *this;
}

Vector4& Vector4::operator-=(const Vector4& rhs)
{
    *this = *this - rhs;
    return *this;
}

Vector4& Vector4::operator*=(f32 rhs)
{
    *this = *this * rhs;
    return *this;
}

Vector4& Vector4::operator/=(f32 rhs)
{
    *this = *this / rhs;
    return *this;
}

bool Vector4::operator==(const Vector4& rhs) const
{
    // A difference of exactly 1e-5 already makes two vectors unequal.
    return fabsf(x - rhs.x) < KR_EPSILON && fabsf(y - rhs.y) < KR_EPSILON &&
           fabsf(z - rhs.z) < KR_EPSILON && fabsf(w - rhs.w) < KR_EPSILON;
}

bool Vector4::operator!=(const Vector4& rhs) const
{
    return !(*this == rhs);
}

f32 Vector4::Dot(const Vector4& rhs) const
{
    return x * rhs.x + y * rhs.y + z * rhs.z;
}

Vector4 Vector4::Cross(const Vector4& rhs) const
{
    return Vector4(y * rhs.z - z * rhs.y, z * rhs.x - x * rhs.z, x * rhs.y - y * rhs.x, 0.0f);
}

f32 Vector4::Length() const
{
    return sqrtf(LengthSq());
}

f32 Vector4::LengthSq() const
{
    return x * x + y * y + z * z + w * w;
}

void Vector4::Normalize()
{
    f32 len = Length();

    if (len > -KR_EPSILON && len < KR_EPSILON)
        return;

    x /= len;
    y /= len;
    z /= len;
    w /= len;
}

void Vector4::Zero()
{
    x = 0.0f;
    y = 0.0f;
    z = 0.0f;
    w = 0.0f;
}

void Vector4::Print() const
{
    printf("%5.3f, %5.3f, %5.3f, %5.3f\n", x, y, z, w);
}
