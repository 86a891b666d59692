// editor_snap.cpp -- where a held object lands when it is released on a placed one: flush against it, by tables
// of the target's kind and the direction from the target to the held object.
//
// Owns:    the snapping tables.
// Used by: the left click of the editor, for a held object whose box meets a placed object's.
//
// The tables are open intervals: a direction of exactly 5, 175, 185 or 355 degrees off a platform sets nothing.
// Their small asymmetries (the right of a wall keeps the wall's y, its left the held object's y; above a wall
// keeps the held x, below it the wall's x) are the editor's feel and stay as they are.
#include "editor_internal.h"

#include <cmath>

namespace {

// The pi of the snapping angle, with its last digit low; kept, since boundary cases depend on it.
const f32 SNAP_PI = 3.1415925f;

void Set(GameObjInst* pHeld, f32 x, f32 y, EditorHistory* pHistory)
{
    pHeld->posCurr.x = x;
    pHeld->posCurr.y = y;
    EditorUndoPush(pHistory, EDITOR_UNDO_PLACED, pHeld);
}

void SnapToPlatform(const GameObjInst* pT, GameObjInst* pH, f32 angle, EditorHistory* pHistory)
{
    u32 held = pH->pObject->type;
    const KRVec2& t = pT->posCurr;

    // Spikes sit on or hang under the platform whatever the direction: 10 of the platform and 11.5 of the spike.
    if (held == TYPE_SPIKE_UP || held == TYPE_SPIKE_ROW_UP)
        Set(pH, pH->posCurr.x, t.y + 21.5f, pHistory);
    if (held == TYPE_SPIKE_DOWN || held == TYPE_SPIKE_ROW_DOWN)
        Set(pH, pH->posCurr.x, t.y - 21.5f, pHistory);

    if (angle < 5.0f || angle > 355.0f)
    {
        if (held == TYPE_PLATFORM)
            Set(pH, t.x + 100.0f, t.y, pHistory);
        else if (held == TYPE_WALL)
            Set(pH, t.x + 60.0f, t.y, pHistory);
    }
    else if (angle > 5.0f && angle < 175.0f)
    {
        if (held == TYPE_PLATFORM)
            Set(pH, pH->posCurr.x, t.y + 20.0f, pHistory);
        else if (held == TYPE_WALL)
            Set(pH, pH->posCurr.x, t.y + 60.0f, pHistory);
    }
    else if (angle > 175.0f && angle < 185.0f)
    {
        if (held == TYPE_PLATFORM)
            Set(pH, t.x - 100.0f, t.y, pHistory);
        else if (held == TYPE_WALL)
            Set(pH, t.x - 60.0f, t.y, pHistory);
    }
    else if (angle > 185.0f && angle < 355.0f)
    {
        if (held == TYPE_PLATFORM)
            Set(pH, pH->posCurr.x, t.y - 20.0f, pHistory);
        else if (held == TYPE_WALL)
            Set(pH, pH->posCurr.x, t.y - 60.0f, pHistory);
    }
}

void SnapToWall(const GameObjInst* pT, GameObjInst* pH, f32 angle, EditorHistory* pHistory)
{
    u32 held = pH->pObject->type;
    const KRVec2& t = pT->posCurr;

    if (angle < 85.0f || angle > 275.0f)
    {
        if (held == TYPE_WALL)
            Set(pH, t.x + 20.0f, t.y, pHistory);
        else if (held == TYPE_PLATFORM)
            Set(pH, t.x + 60.0f, pH->posCurr.y, pHistory);
    }
    else if (angle > 85.0f && angle < 95.0f)
    {
        if (held == TYPE_WALL)
            Set(pH, t.x, t.y + 100.0f, pHistory);
        else if (held == TYPE_PLATFORM)
            Set(pH, pH->posCurr.x, t.y + 60.0f, pHistory);
    }
    else if (angle > 95.0f && angle < 265.0f)
    {
        if (held == TYPE_WALL)
            Set(pH, t.x - 20.0f, pH->posCurr.y, pHistory);
        else if (held == TYPE_PLATFORM)
            Set(pH, t.x - 60.0f, pH->posCurr.y, pHistory);
    }
    else if (angle > 265.0f && angle < 275.0f)
    {
        if (held == TYPE_WALL)
            Set(pH, t.x, t.y - 100.0f, pHistory);
        else if (held == TYPE_PLATFORM)
            Set(pH, t.x, t.y - 60.0f, pHistory);
    }
}

// Four steps, each with its record: a platform or a wall ends above the character, after a stop at its right.
void SnapToCharacter(const GameObjInst* pT, GameObjInst* pH, EditorHistory* pHistory)
{
    u32 held = pH->pObject->type;
    const KRVec2& t = pT->posCurr;
    if (held == TYPE_PLATFORM)
        Set(pH, t.x + pT->scale + 50.0f, t.y, pHistory);
    if (held == TYPE_WALL)
        Set(pH, t.x + pT->scale + 10.0f, t.y, pHistory);
    if (held == TYPE_PLATFORM)
        Set(pH, t.x, t.y + pT->scale + 10.0f, pHistory);
    if (held == TYPE_WALL)
        Set(pH, t.x, t.y + pT->scale + 50.0f, pHistory);
}

// Spikes line up at their own width of 11, a row of them too. At exactly 180 degrees both rows run and the left
// one wins.
void SnapToSpike(const GameObjInst* pT, GameObjInst* pH, f32 angle, u32 kindA, u32 kindB, EditorHistory* pHistory)
{
    u32 held = pH->pObject->type;
    const KRVec2& t = pT->posCurr;
    if (held == kindA || held == kindB)
    {
        if (angle <= 180.0f || angle >= 270.0f)
            Set(pH, t.x + 11.0f, t.y, pHistory);
        if (angle >= 180.0f && angle < 270.0f)
            Set(pH, t.x - 11.0f, t.y, pHistory);
    }
}

} // namespace

f32 EditorSnapAngle(const GameObjInst* pTarget, const GameObjInst* pHeld)
{
    KRVec2 Distance;
    KRVec2 Distance_Dir;
    KRVec2 xAxis = {1.0f, 0.0f};
    KRVec2Sub(&Distance, &pHeld->posCurr, &pTarget->posCurr);
    KRVec2Normalize(&Distance_Dir, &Distance);
    f32 angle = std::acos(KRVec2DotProduct(&Distance_Dir, &xAxis)) * 180.0f / SNAP_PI;
    if (Distance_Dir.y < 0.0f)
        angle = 360.0f - angle;
    return angle;
}

void EditorSnap(const GameObjInst* pTarget, GameObjInst* pHeld, EditorHistory* pHistory)
{
    f32 angle = EditorSnapAngle(pTarget, pHeld);
    u32 target = pTarget->pObject->type;

    if (target == TYPE_PLATFORM)
        SnapToPlatform(pTarget, pHeld, angle, pHistory);
    else if (target == TYPE_WALL)
        SnapToWall(pTarget, pHeld, angle, pHistory);
    else if (target == TYPE_CHARACTER)
        SnapToCharacter(pTarget, pHeld, pHistory);
    else if (target == TYPE_SPIKE_UP)
    {
        SnapToSpike(pTarget, pHeld, angle, TYPE_SPIKE_UP, TYPE_SPIKE_ROW_UP, pHistory);
        if (pHeld->pObject->type == TYPE_PLATFORM)
            Set(pHeld, pHeld->posCurr.x, pTarget->posCurr.y - 21.5f, pHistory);
    }
    else if (target == TYPE_SPIKE_DOWN)
        SnapToSpike(pTarget, pHeld, angle, TYPE_SPIKE_DOWN, TYPE_SPIKE_DOWN, pHistory);
}
