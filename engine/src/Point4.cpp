// Point4.cpp -- the four-float position of the homogeneous 3D math: moving by vectors,
// differences of points, comparison and printing.
//
// Owns:    nothing but code; a plain value type.
// Read by: Matrix4 and the graphics frame's camera.
#include "Point4.h"

#include "KRMath.h"

#include <cmath>
#include <cstdio>

Point4::Point4() : x(0.0f), y(0.0f), z(0.0f), w(1.0f)
{
}

Point4::Point4(const Point4& rhs) : x(rhs.x), y(rhs.y), z(rhs.z), w(rhs.w)
{
}

Point4::Point4(f32 xx, f32 yy, f32 zz, f32 ww) : x(xx), y(yy), z(zz), w(ww)
{
}

Point4& Point4::operator=(const Point4& rhs)
{
    x = rhs.x;
    y = rhs.y;
    z = rhs.z;
    w = rhs.w;
    return *this;
}

Point4 Point4::operator-() const
{
    return Point4(-x, -y, -z, -w);
}

Vector4 Point4::operator-(const Point4& rhs) const
{
    return Vector4(x - rhs.x, y - rhs.y, z - rhs.z, w - rhs.w);
}

Point4 Point4::operator+(const Vector4& rhs) const
{
    return Point4(x + rhs.x, y + rhs.y, z + rhs.z, w + rhs.w);
}

Point4 Point4::operator-(const Vector4& rhs) const
{
    return Point4(x - rhs.x, y - rhs.y, z - rhs.z, w - rhs.w);
}

Point4& Point4::operator+=(const Vector4& rhs)
{
    *this = *this + rhs;
    return *this;
}

Point4& Point4::operator-=(const Vector4& rhs)
{
    *this = *this - rhs;
    return *this;
}

bool Point4::operator==(const Point4& rhs) const
{
    return fabsf(x - rhs.x) < KR_EPSILON && fabsf(y - rhs.y) < KR_EPSILON &&
           fabsf(z - rhs.z) < KR_EPSILON && fabsf(w - rhs.w) < KR_EPSILON;
}

bool Point4::operator!=(const Point4& rhs) const
{
    return !(*this == rhs);
}

void Point4::Zero()
{
    x = 0.0f;
    y = 0.0f;
    z = 0.0f;
    w = 1.0f;
}

void Point4::Print() const
{
    printf("%5.3f, %5.3f, %5.3f, %5.3f\n", x, y, z, w);
}
