// KRUtil.cpp -- the engine's geometry library: distances, overlap tests and swept tests of
// points and circles against line segments and circles, with their reflections.
//
// Owns:    nothing but code; pure functions on the caller's records.
// Read by: nobody in the game (its collision has its own routines); public engine surface.
//
// The comparisons are exact and their strictness (>= here, > there) is part of each result.
#include "KRUtil.h"

#include "KRMath.h"

#include <cmath>

f32 KRCalcDistPointToCircle(const KRVec2* pP, const KRVec2* pCtr, f32 radius)
{
    return KRVec2Distance(pP, pCtr) - radius;
}

f32 KRCalcDistPointToRect(const KRVec2* pP, const KRVec2* pRect, f32 sizeX, f32 sizeY)
{
    KRVec2 d;
    f32 hw = sizeX * 0.5f;
    f32 hh = sizeY * 0.5f;

    KRVec2Sub(&d, pP, pRect);

    if (fabsf(d.x) > hw || fabsf(d.y) > hh)
    {
        KRVec2 nearest;
        KRVec2Set(&nearest, KRClamp(d.x, -hw, hw), KRClamp(d.y, -hh, hh));
        return KRVec2Distance(&d, &nearest);
    }

    // Inside: minus the smaller margin to an edge.
    f32 ex = (d.x >= 0.0f) ? hw - d.x : hw + d.x;
    f32 ey = (d.y >= 0.0f) ? hh - d.y : hh + d.y;
    return -((ey > ex) ? ex : ey);
}

f32 KRCalcDistPointToLineSeg(const KRVec2* pP, const KRVec2* pLine0, const KRVec2* pLine1)
{
    KRVec2 v;
    KRVec2 q;

    KRVec2Sub(&v, pLine1, pLine0);
    KRVec2Sub(&q, pP, pLine0);
    f32 len = KRVec2Length(&v);

    // A segment of (nearly) no length is its first point.
    if (len < KR_EPSILON)
        return KRVec2Distance(pP, pLine0);

    f32 t = KRVec2DotProduct(&v, &q) / len;
    if (0.0f >= t)
        return KRVec2Length(&q);
    if (t >= len)
        return KRVec2Distance(pP, pLine1);

    f32 s = KRVec2SquareLength(&q) - t * t;
    if (0.0f >= s)
        return 0.0f;
    return sqrtf(s);
}

f32 KRCalcDistPointToConvexPoly(const KRVec2* pP, const KRVec2* pVertices, u32 vertexNum)
{
    // Never implemented; callers get the constant.
    (void)pP;
    (void)pVertices;
    (void)vertexNum;
    return -1.0f;
}

f32 KRCalcDistCircleToCircle(const KRVec2* pCtr0, f32 radius0, const KRVec2* pCtr1, f32 radius1)
{
    return KRVec2Distance(pCtr0, pCtr1) - radius0 - radius1;
}

f32 KRCalcDistCircleToRect(const KRVec2* pCtr0, f32 radius, const KRVec2* pRect, f32 sizeX,
                           f32 sizeY)
{
    return KRCalcDistPointToRect(pCtr0, pRect, sizeX, sizeY) - radius;
}

f32 KRCalcDistRectToRect(const KRVec2* pRect0, f32 sizeX0, f32 sizeY0, const KRVec2* pRect1,
                         f32 sizeX1, f32 sizeY1, KRVec2* pNormal)
{
    KRVec2 d;
    KRVec2 normal;

    KRVec2Sub(&d, pRect1, pRect0);

    // Apart or only touching: no penetration, and the normal is left as the caller had it.
    if (fabsf(d.x) >= (sizeX0 + sizeX1) * 0.5f || fabsf(d.y) >= (sizeY0 + sizeY1) * 0.5f)
        return 0.0f;

    f32 dist = fabsf(d.x) - sizeX0 * 0.5f - sizeX1 * 0.5f;
    KRVec2Set(&normal, (d.x >= 0.0f) ? -1.0f : 1.0f, 0.0f);

    f32 distY = fabsf(d.y) - sizeY0 * 0.5f - sizeY1 * 0.5f;
    if (distY > dist)
    {
        dist = distY;
        KRVec2Set(&normal, 0.0f, (d.y >= 0.0f) ? -1.0f : 1.0f);
    }

    if (pNormal)
        *pNormal = normal;
    return dist;
}

u32 KRTestPointToCircle(const KRVec2* pP, const KRVec2* pCtr, f32 radius)
{
    // Inclusive: a point on the edge is inside.
    return (radius >= KRVec2Distance(pP, pCtr)) ? 1 : 0;
}

u32 KRTestPointToRect(const KRVec2* pP, const KRVec2* pRect, f32 sizeX, f32 sizeY)
{
    KRVec2 d;
    f32 hw = sizeX * 0.5f;
    f32 hh = sizeY * 0.5f;

    KRVec2Sub(&d, pP, pRect);
    if (d.x > hw || -hw > d.x || d.y > hh || -hh > d.y)
        return 0;
    return 1;
}

u32 KRTestCircleToCircle(const KRVec2* pCtr0, f32 radius0, const KRVec2* pCtr1, f32 radius1)
{
    return (radius0 + radius1 >= KRVec2Distance(pCtr0, pCtr1)) ? 1 : 0;
}

u32 KRTestCircleToRect(const KRVec2* pCtr0, f32 radius, const KRVec2* pRect, f32 sizeX, f32 sizeY)
{
    // Strict, unlike the point test: a circle that only touches the rectangle does not overlap.
    return (radius > KRCalcDistPointToRect(pCtr0, pRect, sizeX, sizeY)) ? 1 : 0;
}

u32 KRTestRectToRect(const KRVec2* pRect0, f32 sizeX0, f32 sizeY0, const KRVec2* pRect1,
                     f32 sizeX1, f32 sizeY1)
{
    KRVec2 d;

    KRVec2Sub(&d, pRect1, pRect0);
    f32 s = sizeX0 * 0.5f + sizeX1 * 0.5f;

    // The vertical test compares with the same sum of half widths: the heights play no part.
    // Callers have always had rectangles overlap this way, so it stays.
    (void)sizeY0;
    (void)sizeY1;
    if (d.x > s || -s > d.x || d.y > s || -s > d.y)
        return 0;
    return 1;
}

f32 KRStaticPointToStaticLineSegment(const KRVec2* pP, const KRLineSegment2D* pSeg)
{
    return KRVec2DotProduct(&pSeg->normal, pP) - pSeg->normalDotP0;
}

// The last steps shared by the point and circle tests on a segment: the candidate contact of
// the centre must lie between the segment's ends.
static f32 sSegmentContact(const KRVec2* pStart, const KRVec2* pMove, f32 t,
                           const KRLineSegment2D* pSeg, KRVec2* pInter)
{
    KRVec2 c;
    KRVec2 fromP0;
    KRVec2 fromP1;
    KRVec2 along;
    KRVec2 back;

    KRVec2ScaleAdd(&c, pMove, pStart, t);
    KRVec2Sub(&fromP0, &c, &pSeg->p0);
    KRVec2Sub(&along, &pSeg->p1, &pSeg->p0);
    KRVec2Sub(&fromP1, &c, &pSeg->p1);
    KRVec2Sub(&back, &pSeg->p0, &pSeg->p1);

    if (KRVec2DotProduct(&fromP0, &along) < 0.0f || KRVec2DotProduct(&fromP1, &back) < 0.0f)
        return -1.0f;

    *pInter = c;
    return t;
}

f32 KRAnimatedPointToStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                       const KRLineSegment2D* pSeg, KRVec2* pInter)
{
    const KRVec2* pN = &pSeg->normal;
    f32 dotStart = KRVec2DotProduct(pN, pStart);
    f32 dotEnd = KRVec2DotProduct(pN, pEnd);

    // Both ends on one side: no crossing. Ends on the line pass on to the parallel test.
    if ((dotStart < pSeg->normalDotP0 && dotEnd < pSeg->normalDotP0) ||
        (dotStart > pSeg->normalDotP0 && dotEnd > pSeg->normalDotP0))
        return -1.0f;

    KRVec2 v;
    KRVec2Sub(&v, pEnd, pStart);
    f32 dotMove = KRVec2DotProduct(pN, &v);
    if (fabsf(dotMove) < KR_EPSILON)
        return -1.0f;

    f32 t = (KRVec2DotProduct(pN, &pSeg->p0) - dotStart) / dotMove;
    return sSegmentContact(pStart, &v, t, pSeg, pInter);
}

f32 KRAnimatedCircleToStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                        const KRLineSegment2D* pSeg, KRVec2* pInter)
{
    const KRVec2* pN = &pSeg->normal;
    f32 distStart = KRVec2DotProduct(pN, pStart) - pSeg->normalDotP0;
    f32 distEnd = KRVec2DotProduct(pN, pEnd) - pSeg->normalDotP0;

    if (-radius > distStart && -radius > distEnd)
        return -1.0f;
    if (distStart > radius && distEnd > radius)
        return -1.0f;

    KRVec2 v;
    KRVec2Sub(&v, pEnd, pStart);
    f32 dotMove = KRVec2DotProduct(pN, &v);
    if (fabsf(dotMove) < KR_EPSILON)
        return -1.0f;

    // Contact when the centre is one radius off the line, on the side it starts from.
    f32 offset = (distStart < 0.0f) ? -radius : radius;
    f32 t = (KRVec2DotProduct(pN, &pSeg->p0) - KRVec2DotProduct(pN, pStart) + offset) / dotMove;

    // The end test is on the centre: a circle passing just past an end does not hit.
    return sSegmentContact(pStart, &v, t, pSeg, pInter);
}

// r = (N * (w . N)) * -2 + w, with w the rest of the move after the contact.
static void sReflectOnSegment(const KRVec2* pEnd, const KRLineSegment2D* pSeg,
                              const KRVec2* pInter, KRVec2* pReflect)
{
    KRVec2 w;
    KRVec2 along;

    KRVec2Sub(&w, pEnd, pInter);
    KRVec2Scale(&along, &pSeg->normal, KRVec2DotProduct(&w, &pSeg->normal));
    KRVec2ScaleAdd(pReflect, &along, &w, -2.0f);
}

f32 KRReflectAnimatedPointOnStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                              const KRLineSegment2D* pSeg, KRVec2* pInter,
                                              KRVec2* pReflect)
{
    f32 t = KRAnimatedPointToStaticLineSegment(pStart, pEnd, pSeg, pInter);

    if (t > 0.0f)
        sReflectOnSegment(pEnd, pSeg, pInter, pReflect);
    return t;
}

f32 KRReflectAnimatedCircleOnStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                               f32 radius, const KRLineSegment2D* pSeg,
                                               KRVec2* pInter, KRVec2* pReflect)
{
    f32 t = KRAnimatedCircleToStaticLineSegment(pStart, pEnd, radius, pSeg, pInter);

    if (t > 0.0f)
        sReflectOnSegment(pEnd, pSeg, pInter, pReflect);
    return t;
}

f32 KRAnimatedPointToStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, const KRVec2* pCtr,
                                  f32 radius, KRVec2* pInter)
{
    KRVec2 m;
    KRVec2 v;
    KRVec2 n;

    KRVec2Sub(&m, pCtr, pStart);
    KRVec2Sub(&v, pEnd, pStart);
    // A move of no length is not guarded: n is not finite and the comparisons decide.
    KRVec2Normalize(&n, &v);
    f32 a = KRVec2DotProduct(&m, &n);
    f32 d2 = KRVec2SquareDistance(pStart, pCtr);
    f32 r2 = radius * radius;

    // Only a start inside, moving away, is rejected here. A start outside moving away reaches
    // the end test below with a negative t, and that t is returned as it is.
    if (0.0f > a && r2 > d2)
        return -1.0f;

    f32 s = d2 - a * a;
    if (s > r2)
        return -1.0f;

    f32 q = sqrtf(r2 - s);
    f32 t = (a - q) / KRVec2Length(&v);

    // The contact is written before the test of the move's end.
    KRVec2ScaleAdd(pInter, &v, pStart, t);

    KRVec2 endToStart;
    KRVec2 endToInter;
    KRVec2Sub(&endToStart, pStart, pEnd);
    KRVec2Sub(&endToInter, pInter, pEnd);
    if (KRVec2DotProduct(&endToStart, &endToInter) < 0.0f)
        return -1.0f;
    return t;
}

f32 KRReflectAnimatedPointOnStaticCircle(const KRVec2* pStart, const KRVec2* pEnd,
                                         const KRVec2* pCtr, f32 radius, KRVec2* pInter,
                                         KRVec2* pReflect)
{
    f32 t = KRAnimatedPointToStaticCircle(pStart, pEnd, pCtr, radius, pInter);

    if (t > 0.0f)
    {
        KRVec2 n;
        KRVec2 m;

        KRVec2Sub(&n, pInter, pCtr);
        KRVec2Normalize(&n, &n);
        KRVec2Sub(&m, pStart, pInter);
        KRVec2ScaleSub(pReflect, &n, &m, 2.0f * KRVec2DotProduct(&m, &n));
    }
    return t;
}

f32 KRAnimatedCircleToStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                   const KRVec2* pCtr, f32 radius2, KRVec2* pInter)
{
    return KRAnimatedPointToStaticCircle(pStart, pEnd, pCtr, radius + radius2, pInter);
}

f32 KRReflectAnimatedCircleOnStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                          const KRVec2* pCtr, f32 radius2, KRVec2* pInter,
                                          KRVec2* pReflect)
{
    return KRReflectAnimatedPointOnStaticCircle(pStart, pEnd, pCtr, radius + radius2, pInter,
                                                pReflect);
}
