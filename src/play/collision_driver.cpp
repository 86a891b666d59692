// collision_driver.cpp -- the two passes of a frame over the pool: travelling wall, platforms with their riding
// and the drop walls' landings, then walls and drop walls, in an order that differs between the two gravities.
#include "collision.h"
#include "movers.h"
#include "playcommon.h"

namespace {

bool IsPlatform(u32 kind)
{
    return kind == TYPE_PLATFORM || kind == TYPE_PLATFORM_LONG || kind == TYPE_PLATFORM_MOVING;
}

typedef void (*RideFn)(GameObjInst*, const GameObjInst*, f32);
typedef void (*PlatformFn)(GameObjInst*, const GameObjInst*, f32);
typedef void (*LandFn)(const GameObjInst*, GameObjInst*, const GameObjInst*);

void RideInverted(GameObjInst* pC, const GameObjInst* pP, f32)
{
    PlatformRideInverted(pC, pP);
}

// The slots that the drop-wall landing can act on, in slot order: it is a no-op for every other kind, so walking
// only these for each platform gives the same pairs in the same order as walking all 2048 slots, at a fraction of
// the cost in a full level. Filled at the start of each pass; nothing in the pass creates or destroys instances.
GameObjInst* sDropWallSlots[GAME_OBJ_INST_NUM_MAX];
u32 sDropWallSlotNum = 0;

void GatherDropWalls(GameObjPool* pPool)
{
    sDropWallSlotNum = 0;
    for (u32 j = 0; j < GAME_OBJ_INST_NUM_MAX; j++)
    {
        GameObjInst* pX = &pPool->sGameObjInstList[j];
        if (pX->flag && pX->pObject->type == TYPE_DROP_WALL)
            sDropWallSlots[sDropWallSlotNum++] = pX;
    }
}

// Step 2 of both drivers: every live slot but the characters, in slot order.
void SolidsPass(GameObjInst* pC, GameObjPool* pPool, f32 m, bool normal, RideFn ride, PlatformFn platform,
                LandFn land)
{
    GatherDropWalls(pPool);
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pI = &pPool->sGameObjInstList[i];
        if (!(pI->flag & FLAG_ACTIVE))
            continue;
        const u32 kind = pI->pObject->type;
        if (kind == TYPE_CHARACTER)
            continue;
        if (kind == TYPE_MOVING_WALL && CollisionInstances(pC, pI))
        {
            pC->posCurr.x += pI->boundingBox.maxX - pC->boundingBox.minX;
            // The normal driver lifts the character by one as well.
            if (normal)
                pC->posCurr.y += 1.0f;
            if (pI->velCurr.x > 0.0f)
                gPlay.sHitByMovingWall = 1;
        }
        if (!IsPlatform(kind))
            continue;
        if (CollisionInstances(pC, pI))
        {
            if (kind == TYPE_PLATFORM_MOVING)
                ride(pC, pI, m);
            platform(pC, pI, m);
        }
        for (u32 j = 0; j < sDropWallSlotNum; j++)
            land(pI, sDropWallSlots[j], pC);
    }
}

} // namespace

u8 CollisionPlayNormal(GameObjInst* pC, GameObjPool* pPool, f32 m, f32 dt)
{
    if (!pC->flag || gPlay.sGravityInverted)
        return gPlay.sHitByMovingWall;
    gPlay.sHitByMovingWall = 0;
    SolidsPass(pC, pPool, m, true, PlatformRideNormal, CollisionPlatformNormal, DropWallLandNormal);
    CollisionWallsNormal(pC, pPool, m);
    DropWallsNormal(pC, pPool, m, dt);
    return gPlay.sHitByMovingWall;
}

u8 CollisionPlayInverted(GameObjInst* pC, GameObjPool* pPool, f32 m, f32 dt)
{
    gPlay.sHitByMovingWall = 0;
    SolidsPass(pC, pPool, m, false, RideInverted, CollisionPlatformInverted, DropWallLandInverted);
    // Drop walls before walls here: the order of the two steps is swapped between the drivers.
    DropWallsInverted(pC, pPool, m, dt);
    CollisionWallsInverted(pC, pPool, m);
    return gPlay.sHitByMovingWall;
}
