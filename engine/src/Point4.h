// Point4.h -- a position of four floats for the homogeneous 3D math; default (0, 0, 0, 1).
#ifndef KR_POINT4_H
#define KR_POINT4_H

#include "KRTypes.h"
#include "Vector4.h"

class Point4
{
public:
    f32 x;
    f32 y;
    f32 z;
    f32 w;

    Point4();
    Point4(const Point4& rhs);
    Point4(f32 xx, f32 yy, f32 zz, f32 ww);

    Point4& operator=(const Point4& rhs);

    // All four components, w included.
    Point4 operator-() const;
    // All four components: two ordinary points give a vector with w 0.
    Vector4 operator-(const Point4& rhs) const;
    Point4 operator+(const Vector4& rhs) const;
    Point4 operator-(const Vector4& rhs) const;
    Point4& operator+=(const Vector4& rhs);
    Point4& operator-=(const Vector4& rhs);

    // Every component closer than 1e-5.
    bool operator==(const Point4& rhs) const;
    bool operator!=(const Point4& rhs) const;

    // Back to (0, 0, 0, 1).
    void Zero();
    void Print() const;
};

#endif // KR_POINT4_H
