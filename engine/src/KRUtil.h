// KRUtil.h -- distances, overlap tests and swept collision tests on points, circles, rectangles
// and line segments.
//
// Distances: a negative result means inside. Overlap tests give 1 or 0. Swept tests give the
// part t of the move pStart -> pEnd at which contact happens, or -1.0 for none; pInter gets the
// point of contact and the reflecting variants fill pReflect with the reflected direction.
// Rectangles are given by centre, full width and full height.
#ifndef KR_UTIL_H
#define KR_UTIL_H

#include "KRTypes.h"
#include "KRVec2.h"

// A static segment; the caller fills all seven floats, normal of unit length.
struct KRLineSegment2D
{
    KRVec2 p0;
    KRVec2 p1;
    KRVec2 normal;
    // normal . p0
    f32 normalDotP0;
};

f32 KRCalcDistPointToCircle(const KRVec2* pP, const KRVec2* pCtr, f32 radius);
f32 KRCalcDistPointToRect(const KRVec2* pP, const KRVec2* pRect, f32 sizeX, f32 sizeY);
f32 KRCalcDistPointToLineSeg(const KRVec2* pP, const KRVec2* pLine0, const KRVec2* pLine1);
// Not implemented: always -1.0.
f32 KRCalcDistPointToConvexPoly(const KRVec2* pP, const KRVec2* pVertices, u32 vertexNum);
f32 KRCalcDistCircleToCircle(const KRVec2* pCtr0, f32 radius0, const KRVec2* pCtr1, f32 radius1);
f32 KRCalcDistCircleToRect(const KRVec2* pCtr0, f32 radius, const KRVec2* pRect, f32 sizeX,
                           f32 sizeY);
// The penetration (negative) on the axis of least overlap, and that axis' normal when pNormal
// is not null; 0.0 and pNormal untouched when the rectangles do not overlap.
f32 KRCalcDistRectToRect(const KRVec2* pRect0, f32 sizeX0, f32 sizeY0, const KRVec2* pRect1,
                         f32 sizeX1, f32 sizeY1, KRVec2* pNormal);

u32 KRTestPointToCircle(const KRVec2* pP, const KRVec2* pCtr, f32 radius);
u32 KRTestPointToRect(const KRVec2* pP, const KRVec2* pRect, f32 sizeX, f32 sizeY);
u32 KRTestCircleToCircle(const KRVec2* pCtr0, f32 radius0, const KRVec2* pCtr1, f32 radius1);
u32 KRTestCircleToRect(const KRVec2* pCtr0, f32 radius, const KRVec2* pRect, f32 sizeX, f32 sizeY);
// Both axes are tested against the sum of the half widths; the heights have no influence.
u32 KRTestRectToRect(const KRVec2* pRect0, f32 sizeX0, f32 sizeY0, const KRVec2* pRect1,
                     f32 sizeX1, f32 sizeY1);

// Signed distance of the point from the segment's line: normal . p - normalDotP0.
f32 KRStaticPointToStaticLineSegment(const KRVec2* pP, const KRLineSegment2D* pSeg);
f32 KRAnimatedPointToStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                       const KRLineSegment2D* pSeg, KRVec2* pInter);
f32 KRAnimatedCircleToStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                        const KRLineSegment2D* pSeg, KRVec2* pInter);
f32 KRReflectAnimatedPointOnStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                              const KRLineSegment2D* pSeg, KRVec2* pInter,
                                              KRVec2* pReflect);
f32 KRReflectAnimatedCircleOnStaticLineSegment(const KRVec2* pStart, const KRVec2* pEnd,
                                               f32 radius, const KRLineSegment2D* pSeg,
                                               KRVec2* pInter, KRVec2* pReflect);
f32 KRAnimatedPointToStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, const KRVec2* pCtr,
                                  f32 radius, KRVec2* pInter);
f32 KRReflectAnimatedPointOnStaticCircle(const KRVec2* pStart, const KRVec2* pEnd,
                                         const KRVec2* pCtr, f32 radius, KRVec2* pInter,
                                         KRVec2* pReflect);
f32 KRAnimatedCircleToStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                   const KRVec2* pCtr, f32 radius2, KRVec2* pInter);
f32 KRReflectAnimatedCircleOnStaticCircle(const KRVec2* pStart, const KRVec2* pEnd, f32 radius,
                                          const KRVec2* pCtr, f32 radius2, KRVec2* pInter,
                                          KRVec2* pReflect);

#endif // KR_UTIL_H
