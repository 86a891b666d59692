// editor_testplay.cpp -- test play: the level runs in place on the editor's own pool, with the common movement,
// flip and collision routines of play; nothing can be won or lost, and Escape goes back to editing.
//
// Owns:    the cut-down frame of test play and the end of a test.
// Changes: the character and every instance's position, gPlay.sGravityInverted, gEditor.sEditPlay, the camera.
// Used by: the editor's Update while sEditorTesting is set.
//
// Key 0 restarts a level, but a restart of the editor would run its Init, which nulls the character that the
// next test frame reads. The editor therefore drops key 0 during a test: nothing happens, the test goes on.
#include "editor_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "character.h"
#include "collision.h"
#include "collision_rect.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "playcommon.h"
#include "torch.h"

namespace {

const f32 TEST_PI = 3.1415925f;
const f32 COLLISION_MARGIN = 10.0f;
const unsigned char KEY_ESCAPE = 27;

const f32 ZOOM_STEP = 0.00015f;
const f32 ZOOM_FLOOR = 0.5f;
const f32 ZOOM_BAND = 0.02f;

bool Live(const GameObjInst* pInst)
{
    return pInst && (pInst->flag & FLAG_ACTIVE);
}

// The boxes of test play; spikes have the editor's own rows, and the down spike's box has no height.
void BoxOf(GameObjInst* pInst)
{
    f32 x = pInst->posCurr.x;
    f32 y = pInst->posCurr.y;
    u32 kind = pInst->pObject->type;
    f32 halfW = pInst->scale / 6.0f;
    f32 bottom = y - pInst->scale / 2.0f;
    f32 top = y + pInst->scale / 2.0f;
    if (kind == TYPE_PLATFORM || kind == TYPE_PLATFORM_MOVING)
        halfW = 50.0f, bottom = y - 10.0f, top = y + 10.0f;
    else if (kind == TYPE_PLATFORM_LONG)
        halfW = 75.0f, bottom = y - 10.0f, top = y + 10.0f;
    else if (kind == TYPE_WALL || kind == TYPE_DROP_WALL)
        halfW = 10.0f, bottom = y - 50.0f, top = y + 50.0f;
    else if (kind == TYPE_SPIKE_UP)
        halfW = 5.5f, bottom = y - 11.5f, top = y;
    else if (kind == TYPE_SPIKE_DOWN)
        halfW = 5.5f, bottom = y, top = y;
    else if (kind == TYPE_SPIKE_ROW_UP)
        halfW = 60.5f, bottom = y - 11.5f, top = y;
    else if (kind == TYPE_SPIKE_ROW_DOWN)
        halfW = 60.5f, bottom = y, top = y + 11.5f;
    pInst->boundingBox.minX = x - halfW;
    pInst->boundingBox.maxX = x + halfW;
    pInst->boundingBox.minY = bottom;
    pInst->boundingBox.maxY = top;
}

// Only the zoom power-up answers a touch; spikes, the exit and batteries are met and nothing comes of it.
void Contacts(GameObjInst* pCharacter)
{
    for (GameObjInst& inst : gEditorPool.sGameObjInstList)
    {
        if (!Live(&inst) || &inst == pCharacter || !Live(pCharacter))
            continue;
        if (inst.pObject->type == TYPE_ZOOM_POWERUP &&
            CollisionIntersection_RectRect(&inst.boundingBox, &inst.velCurr, &pCharacter->boundingBox,
                                           &pCharacter->velCurr))
        {
            gEditor.sEditPlay.sZoomActive = 1;
            gameObjInstDestroy(&inst);
        }
    }
}

bool FixedToView(u32 kind)
{
    return kind == TYPE_SIDEBAR || kind == TYPE_SIDEBAR_BG || kind == TYPE_BATTERY_BAR || kind == TYPE_WIN_SCREEN ||
           kind == TYPE_LOSE_SCREEN || kind == TYPE_INVERT_UP || kind == TYPE_INVERT_DOWN || kind == TYPE_HUD_DESIGN;
}

// The zoom step is taken once per instance, so a fuller level zooms faster, as in a level.
void ZoomStep()
{
    LevelVars& p = gEditor.sEditPlay;
    if (!p.sZoomReturning && camera_scale >= ZOOM_FLOOR)
        camera_scale -= ZOOM_STEP;
    if (camera_scale >= ZOOM_FLOOR && camera_scale <= ZOOM_FLOOR + ZOOM_BAND)
        p.sZoomReturning = 1;
    if (p.sZoomReturning && camera_scale <= 1.0f)
        camera_scale += ZOOM_STEP;
    if (p.sZoomReturning && camera_scale >= 1.0f - ZOOM_BAND)
    {
        p.sZoomActive = 0;
        p.sZoomReturning = 0;
    }
}

void Transforms(f32 torchAngle)
{
    const u8 inverted = gPlay.sGravityInverted;
    for (GameObjInst& inst : gEditorPool.sGameObjInstList)
    {
        if (!Live(&inst))
            continue;
        u32 kind = inst.pObject->type;
        if (FixedToView(kind))
        {
            GameObjBuildTransform(&inst, inst.posCurr.x, inst.posCurr.y, inst.dirCurr);
            continue;
        }
        f32 y = inverted ? -(inst.posCurr.y + 90.0f) : inst.posCurr.y;
        f32 angle = inverted ? TEST_PI : inst.dirCurr;
        if (kind == TYPE_DARKNESS || kind == TYPE_HAND)
            angle = torchAngle * TEST_PI / 180.0f;
        else if (kind == TYPE_CHARACTER)
        {
            // The turn of a flip eases out by 0.1 a frame.
            if (inst.dirCurr != 0.0f)
            {
                if (inst.dirCurr > 0.0f)
                    inst.dirCurr -= 0.1f;
                if (inst.dirCurr < 0.0f)
                    inst.dirCurr += 0.1f;
            }
            angle = inst.dirCurr;
        }
        GameObjBuildTransform(&inst, inst.posCurr.x, y, angle);

        if (gEditor.sEditPlay.sZoomActive)
        {
            ZoomStep();
            KRMtx33 zoom;
            KRMtx33Scale(&zoom, camera_scale, camera_scale);
            KRMtx33Concat(&inst.transform, &zoom, &inst.transform);
        }
    }
}

void EndTest()
{
    for (GameObjInst& inst : gEditorPool.sGameObjInstList)
    {
        if (Live(&inst) && inst.pObject->type == TYPE_CHARACTER && inst.isInterface == 0)
        {
            inst.velCurr.x = 0.0f;
            inst.velCurr.y = 0.0f;
            break;
        }
    }
    gEditor.sEditorTesting = 0;
    gPlay.sGravityInverted = 0;
    KRGfxSetCamPosition(gEditor.sEditCameraX, gEditor.sEditCameraY);
}

} // namespace

void EditorTestPlayFrame()
{
    GameObjInst* pCharacter = gEditor.pCharacterInst;
    LevelVars& p = gEditor.sEditPlay;
    const f32 dt = gFrameDelta;
    if (!Live(pCharacter))
    {
        EndTest();
        return;
    }

    KRGfxSetCamPosition(pCharacter->posCurr.x, pCharacter->posCurr.y);
    CharacterFacing(&p.sFacingLeft);

    if (gEditor.pHandInst)
    {
        gEditor.pHandInst->posCurr.x = pCharacter->posCurr.x;
        gEditor.pHandInst->posCurr.y = pCharacter->posCurr.y + (gPlay.sGravityInverted ? 8.0f : -8.0f);
    }

    FlipTimersRun(&p, pCharacter, dt);
    CharacterMove(pCharacter, dt, p.sFlipFrozen);
    FlipInput(&p, pCharacter, false);

    // The torch sits on the character, aims at the pointer and keeps the camera inside the level's limits.
    f32 torchAngle = 0.0f;
    if (gEditor.pDarknessInst)
        torchAngle = TorchUpdate(gEditor.pDarknessInst, pCharacter, gPlay.sGravityInverted);
    p.sTorchAngle = torchAngle;

    for (GameObjInst& inst : gEditorPool.sGameObjInstList)
    {
        inst.posCurr.x += inst.velCurr.x * dt;
        inst.posCurr.y += inst.velCurr.y * dt;
    }
    for (GameObjInst& inst : gEditorPool.sGameObjInstList)
        if (Live(&inst))
            BoxOf(&inst);

    Contacts(pCharacter);

    f32 cameraX = 0.0f;
    f32 cameraY = 0.0f;
    KRGfxGetCamPosition(&cameraX, &cameraY);
    if (p.sArrowUp && p.sArrowDown)
        FlipArrowsRun(&p, cameraX, cameraY);

    if (!p.sFlipFrozen && Live(pCharacter) && !gPlay.sGravityInverted)
        CollisionPlayNormal(pCharacter, &gEditorPool, COLLISION_MARGIN, dt);
    else
        CollisionPlayInverted(pCharacter, &gEditorPool, COLLISION_MARGIN, dt);

    Transforms(torchAngle);

    if (KRInputCheckReleased(KEY_ESCAPE))
        EndTest();
}
