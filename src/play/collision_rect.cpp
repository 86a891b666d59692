// collision_rect.cpp -- the overlap test with its time arithmetic, kept with its asymmetry.
#include "collision_rect.h"

#include "gameloop.h"

bool CollisionIntersection_RectRect(const GameObjBox* pBoxA, const KRVec2* pVelA, const GameObjBox* pBoxB,
                                    const KRVec2* pVelB)
{
    (void)pVelA;
    const GameObjBox& a = *pBoxA;
    const GameObjBox& b = *pBoxB;
    const KRVec2& v = *pVelB;

    if (a.minX > b.maxX || a.minY > b.maxY || b.minX > a.maxX || b.minY > a.maxY)
        return false;

    f32 tFirst = 0.0f;
    f32 tLast = gFrameDelta;

    // Both x branches run when the speed is 0; the divisions by zero are the float ones. With A.maxX on B.minX
    // the first branch leaves tLast at minus infinity and the boxes are said not to meet.
    if (v.x <= 0.0f)
    {
        if (b.minX > a.maxX)
            tFirst = (a.maxX - b.minX) / v.x;
        if (b.maxX > a.minX)
            tLast = (a.minX - b.maxX) / v.x;
    }
    if (v.x >= 0.0f)
    {
        if (a.maxX > b.minX)
            tLast = (a.maxX - b.minX) / v.x;
        if (a.minX > b.maxX)
            tFirst = (a.minX - b.maxX) / v.x;
    }
    if (tFirst > tLast)
        return false;

    if (v.y < 0.0f)
    {
        if (b.minY > a.maxY)
            tFirst = (a.maxY - b.minY) / v.y;
        if (b.maxY > a.minY)
            tLast = (a.minY - b.maxY) / v.y;
    }
    if (v.y > 0.0f)
    {
        if (a.maxY > b.minY)
            tLast = (a.maxY - b.minY) / v.y;
        if (a.minY > b.maxY)
            tFirst = (a.minY - b.maxY) / v.y;
    }
    return !(tFirst > tLast);
}
