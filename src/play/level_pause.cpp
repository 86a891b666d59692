// level_pause.cpp -- the pause menu of a level: its objects follow the camera, its buttons answer the pointer
// and the keys, and its pages are drawn by flags.
#include "level_steps.h"

#include "KRInput.h"
#include "KRSystem.h"
#include "collision_rect.h"
#include "fmodsound.h"
#include "gameobjdraw.h"
#include "gamestatemgr.h"
#include "playkeys.h"

namespace {

const f32 kDim = 0.3f;
const f32 kHot = 1.0f;

GameObjInst* Make(LevelState* pLevel, u32 kind, f32 scale, f32 x, f32 y)
{
    const KRVec2 pos = {x, y};
    return gameObjInstCreate(&pLevel->pool, kind, scale, &pos, nullptr, 0.0f, nullptr);
}

void Place(GameObjInst* pInst, f32 x, f32 y)
{
    if (!pInst)
        return;
    pInst->posCurr.x = x;
    pInst->posCurr.y = y;
}

void SetBox(GameObjInst* pInst, f32 halfW, f32 halfH)
{
    pInst->boundingBox.minX = pInst->posCurr.x - halfW;
    pInst->boundingBox.maxX = pInst->posCurr.x + halfW;
    pInst->boundingBox.minY = pInst->posCurr.y - halfH;
    pInst->boundingBox.maxY = pInst->posCurr.y + halfH;
}

bool Over(const GameObjInst* pCursor, const GameObjInst* pButton)
{
    return CollisionIntersection_RectRect(&pCursor->boundingBox, &pCursor->velCurr, &pButton->boundingBox,
                                          &pButton->velCurr);
}

bool Clicked(const LevelVars* pL, const GameObjInst* pButton)
{
    return Over(pL->sCursor, pButton) && KRInputCheckTriggered(PLAY_KEY_LBUTTON);
}

// The hit boxes of a paused frame, written over the world's boxes. The option buttons take the back button's
// scale, not their own, so their boxes are smaller than their pictures.
void BuildBoxes(LevelVars* pL)
{
    GameObjInst* mains[] = {pL->sBtnResume, pL->sBtnOptions, pL->sBtnLevels, pL->sBtnHelp, pL->sBtnExit,
                            pL->sBtnYes,    pL->sBtnNo};
    for (GameObjInst* pButton : mains)
        SetBox(pButton, 50.0f, 20.0f);
    SetBox(pL->sCursor, 0.0001f, 0.0001f);
    const f32 s = pL->sBackBtn->scale;
    SetBox(pL->sBackBtn, 25.0f * s, 25.0f * s);
    SetBox(pL->sBtnFullScreen, 62.0f * s, 52.0f * s);
    SetBox(pL->sBtnVolumeUp, 42.0f * s, 30.0f * s);
    SetBox(pL->sBtnVolumeDown, 42.0f * s, 30.0f * s);
}

bool Free(const LevelVars* pL)
{
    return !pL->sPauseHelp && !pL->sPauseOptions && !pL->sPauseConfirm;
}

bool OnlyOptions(const LevelVars* pL)
{
    return pL->sPauseOptions && !pL->sPauseHelp && !pL->sPauseConfirm;
}

bool OnlyHelp(const LevelVars* pL)
{
    return pL->sPauseHelp && !pL->sPauseOptions && !pL->sPauseConfirm;
}

// Steps 1 to 8: the clicks, in their order.
void Clicks(LevelVars* pL)
{
    if (Free(pL))
    {
        if (Clicked(pL, pL->sBtnResume))
            pL->sPaused = 0;
        else if (Clicked(pL, pL->sBtnLevels))
            gGameStateNext = GS_LS;
        else if (Clicked(pL, pL->sBtnExit))
        {
            pL->sPauseConfirm = 1;
            // Eats the click, so that the box under the cursor does not take it as well.
            KRInputUpdate();
        }
        else if (Clicked(pL, pL->sBtnHelp))
            pL->sPauseHelp = 1;
    }
    if (Free(pL) && Clicked(pL, pL->sBtnOptions))
        pL->sPauseOptions = 1;
    else if (OnlyOptions(pL) && Clicked(pL, pL->sBtnFullScreen))
        KRToogleFullScreen(!gKRFullScreen);
    else if (OnlyOptions(pL) && Clicked(pL, pL->sBtnVolumeUp))
        MusicVolumeUp();
    else if (OnlyOptions(pL) && Clicked(pL, pL->sBtnVolumeDown))
        MusicVolumeDown();
    if (OnlyHelp(pL) && Clicked(pL, pL->sBackBtn))
        pL->sPauseHelp = 0;
    if (OnlyOptions(pL) && Clicked(pL, pL->sBackBtn))
        pL->sPauseOptions = 0;
    if (pL->sPauseConfirm)
    {
        if (Clicked(pL, pL->sBtnYes))
            gGameStateNext = GS_MENU;
        else if (Clicked(pL, pL->sBtnNo))
            pL->sPauseConfirm = 0;
    }
}

// Steps 9 to 12: keys, hover and Enter.
void Keys(LevelVars* pL)
{
    bool moved = false;
    if (KRInputCheckTriggered('A') || KRInputCheckTriggered('W'))
    {
        if (pL->sPauseSelected - 1 >= 0)
        {
            pL->sPauseSelected--;
            pL->sPauseKeyUsed = 1;
            moved = true;
        }
    }
    if (!moved && (KRInputCheckTriggered('D') || KRInputCheckTriggered('S')))
    {
        if (pL->sPauseSelected + 1 < 5)
        {
            pL->sPauseSelected++;
            pL->sPauseKeyUsed = 1;
        }
    }
    // A cursor at rest on a button overrides the keys every frame.
    const GameObjInst* order[] = {pL->sBtnResume, pL->sBtnOptions, pL->sBtnLevels, pL->sBtnHelp, pL->sBtnExit};
    for (s32 i = 0; i < 5; i++)
        if (Over(pL->sCursor, order[i]))
        {
            pL->sPauseSelected = i;
            break;
        }
    if (KRInputCheckTriggered(PLAY_KEY_RETURN) && !pL->sPauseConfirm)
    {
        // Enter does not look at the pages, and exits without the question the mouse asks.
        switch (pL->sPauseSelected)
        {
        case 0: pL->sPaused = 0; break;
        case 1: pL->sPauseOptions = 1; break;
        case 2: gGameStateNext = GS_LS; break;
        case 3: pL->sPauseHelp = 1; break;
        case 4: gGameStateNext = GS_MENU; break;
        default: break;
        }
    }
}

bool IsPauseKind(const LevelState* pLevel, u32 kind)
{
    switch (kind)
    {
    case TYPE_CURSOR: case TYPE_HELP_BTN: case TYPE_EXIT_BTN: case TYPE_RESUME_BTN: case TYPE_OPTION_BTN:
    case TYPE_LEVELS_BTN: case TYPE_PAUSE_TITLE: case TYPE_HELP_SCREEN: case TYPE_OPTION_MENU:
    case TYPE_OPTION_FS: case TYPE_OPTION_VD: case TYPE_OPTION_VU: case TYPE_BACK_BTN:
        return true;
    case TYPE_ARE_YOU_SURE: case TYPE_YES_BTN: case TYPE_NO_BTN:
        return pLevel->pConfig->confirmTransforms;
    default:
        return false;
    }
}

} // namespace

void LevelPauseCreate(LevelState* pLevel, f32 x, f32 y)
{
    LevelVars* pL = &pLevel->vars;
    pL->sBtnResume = Make(pLevel, TYPE_RESUME_BTN, 1.0f, x, y);
    pL->sBtnLevels = Make(pLevel, TYPE_LEVELS_BTN, 1.0f, x, y);
    pL->sBtnOptions = Make(pLevel, TYPE_OPTION_BTN, 1.0f, x, y);
    pL->sBtnHelp = Make(pLevel, TYPE_HELP_BTN, 1.0f, x, y);
    pL->sBtnExit = Make(pLevel, TYPE_EXIT_BTN, 1.0f, x, y);
    pL->sPauseTitle = Make(pLevel, TYPE_PAUSE_TITLE, 1.0f, x, y);
    pL->sHelpPage = Make(pLevel, TYPE_HELP_SCREEN, 1.0f, x, y);
    pL->sOptionPage = Make(pLevel, TYPE_OPTION_MENU, 0.9f, x, y);
    pL->sBackBtn = Make(pLevel, TYPE_BACK_BTN, 0.7f, x, y);
    pL->sBtnFullScreen = Make(pLevel, TYPE_OPTION_FS, 0.9f, x, y);
    pL->sBtnVolumeUp = Make(pLevel, TYPE_OPTION_VU, 0.9f, x, y);
    pL->sBtnVolumeDown = Make(pLevel, TYPE_OPTION_VD, 0.9f, x, y);
    pL->sConfirmBox = Make(pLevel, TYPE_ARE_YOU_SURE, 0.9f, x, y);
    pL->sBtnYes = Make(pLevel, TYPE_YES_BTN, 0.9f, x, y);
    pL->sBtnNo = Make(pLevel, TYPE_NO_BTN, 0.9f, x, y);
    pL->sCursor = Make(pLevel, TYPE_CURSOR, 35.0f, x, y);
}

void LevelPausePlace(LevelState* pLevel, f32 cx, f32 cy)
{
    LevelVars* pL = &pLevel->vars;
    Place(pL->sDamageFlashObj, cx, cy);
    Place(pL->sBtnResume, cx + 100.0f, cy + 150.0f);
    Place(pL->sBtnOptions, cx + 100.0f, cy + 75.0f);
    Place(pL->sBtnLevels, cx + 100.0f, cy);
    Place(pL->sBtnHelp, cx + 100.0f, cy - 75.0f);
    Place(pL->sBtnExit, cx + 100.0f, cy - 150.0f);
    Place(pL->sPauseTitle, cx - 100.0f, cy);
    Place(pL->sHelpPage, cx, cy);
    Place(pL->sBackBtn, cx + 315.0f, cy + 240.0f);
    Place(pL->sOptionPage, cx, cy);
    Place(pL->sBtnFullScreen, cx + 75.0f, cy + 75.0f);
    Place(pL->sBtnVolumeUp, cx - 100.0f, cy - 150.0f);
    Place(pL->sBtnVolumeDown, cx, cy - 150.0f);
    Place(pL->sConfirmBox, cx, cy);
    Place(pL->sBtnYes, cx - 75.0f, cy - 100.0f);
    Place(pL->sBtnNo, cx + 75.0f, cy - 100.0f);
}

void LevelPauseRun(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    BuildBoxes(pL);
    Clicks(pL);
    Keys(pL);
    // The pause kinds' transforms, not turned for gravity; the user level's box keeps its last unpaused one.
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if ((pInst->flag & FLAG_ACTIVE) && IsPauseKind(pLevel, pInst->pObject->type))
            GameObjBuildTransform(pInst, pInst->posCurr.x, pInst->posCurr.y, pInst->dirCurr);
    }
}

bool LevelPauseAlpha(const LevelState* pLevel, const GameObjInst* pInst, f32* pAlpha)
{
    const LevelVars* pL = &pLevel->vars;
    const GameObjInst* pCursor = pL->sCursor;
    const u32 kind = pInst->pObject->type;
    const f32 hover = Over(pCursor, pInst) ? kHot : kDim;
    switch (kind)
    {
    case TYPE_PAUSE_DIM: *pAlpha = pL->sPaused ? 0.5f : 0.0f; return true;
    case TYPE_CURSOR: *pAlpha = pL->sPaused ? 1.0f : 0.0f; return true;
    case TYPE_PAUSE_TITLE: *pAlpha = pL->sPaused && !pL->sPauseConfirm ? 1.0f : 0.0f; return true;
    case TYPE_RESUME_BTN: case TYPE_OPTION_BTN: case TYPE_LEVELS_BTN: case TYPE_HELP_BTN: case TYPE_EXIT_BTN:
    {
        const GameObjInst* order[] = {pL->sBtnResume, pL->sBtnOptions, pL->sBtnLevels, pL->sBtnHelp,
                                      pL->sBtnExit};
        const bool hot = pL->sPauseSelected >= 0 && pL->sPauseSelected < 5 && order[pL->sPauseSelected] == pInst;
        *pAlpha = (!pL->sPaused || pL->sPauseConfirm) ? 0.0f : (hot ? kHot : kDim);
        return true;
    }
    case TYPE_HELP_SCREEN: *pAlpha = pL->sPauseHelp ? 1.0f : 0.0f; return true;
    case TYPE_OPTION_MENU: *pAlpha = pL->sPauseOptions ? 1.0f : 0.0f; return true;
    case TYPE_BACK_BTN: *pAlpha = (pL->sPauseHelp || pL->sPauseOptions) ? hover : 0.0f; return true;
    case TYPE_OPTION_FS: case TYPE_OPTION_VU: case TYPE_OPTION_VD:
        *pAlpha = pL->sPauseOptions ? hover : 0.0f;
        return true;
    case TYPE_ARE_YOU_SURE: *pAlpha = pL->sPauseConfirm ? 1.0f : 0.0f; return true;
    case TYPE_YES_BTN: case TYPE_NO_BTN: *pAlpha = pL->sPauseConfirm ? hover : 0.0f; return true;
    default: return false;
    }
}
