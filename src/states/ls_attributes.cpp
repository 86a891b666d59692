// ls_attributes.cpp -- the character attribute panel of the level selection: skill points earned by finished
// levels, spent on the torch battery and on hit points, and refunded at any time.
//
// The invariant is sSkillPoints + gAttrBattery + gAttrHealth = sSkillPointsTotal. Nothing is passed to a level:
// gAttrBattery and gAttrHealth are globals, read at every level's Init, and reach the progress file when the
// screen is left.
#include "gamestate_ls_internal.h"

#include "KRInput.h"
#include "frontkinds.h"
#include "pointer.h"
#include "progress.h"

static GameObjInst* sBattInc;
static GameObjInst* sBattDec;
static GameObjInst* sHpInc;
static GameObjInst* sHpDec;

// A row of three pips at y.
static void PipRow(u32 kind, f32 y)
{
    for (s32 i = 0; i < 3; i++)
        LSCreate(kind, 1.0f, -215.0f + 50.0f * (f32)i, y, 0.0f, 0.0f);
}

void AttrPanelCreate()
{
    PipRow(TYPE_STAT_BAR_HP, -250.0f);
    sHpInc = LSCreate(TYPE_HP_INC, 1.0f, -50.0f, -230.0f, 0.0f, 0.0f);
    sHpDec = LSCreate(TYPE_HP_DEC, 1.0f, -50.0f, -265.0f, 0.0f, 0.0f);
    LSCreate(TYPE_ATTRI_HP, 1.0f, -300.0f, -230.0f, 0.0f, 0.0f);
    PipRow(TYPE_STAT_BAR_BATT, -120.0f);
    sBattInc = LSCreate(TYPE_BATT_INC, 1.0f, -50.0f, -95.0f, 0.0f, 0.0f);
    sBattDec = LSCreate(TYPE_BATT_DEC, 1.0f, -50.0f, -130.0f, 0.0f, 0.0f);
    LSCreate(TYPE_ATTRI_BATT, 1.0f, -300.0f, -110.0f, 0.0f, 0.0f);
    LSCreate(TYPE_SP_LABEL, 0.7f, -20.0f, -170.0f, 0.0f, 0.0f);

    gLSItems[LS_ITEM_BATT_INC] = sBattInc;
    gLSItems[LS_ITEM_BATT_DEC] = sBattDec;
    gLSItems[LS_ITEM_HP_INC] = sHpInc;
    gLSItems[LS_ITEM_HP_DEC] = sHpDec;
}

// The number of unspent points, rewritten without keep: any message on the screen goes with the old number.
// A negative number loses its minus, which the font doesn't have.
static void WritePoints()
{
    KRVec2 at = {20.0f, -170.0f};
    WriteText(at, IntToText(gLS.sSkillPoints).c_str(), 20.0f, 0);
}

void AttrPanelInit()
{
    gLS.sSkillPointsTotal = StatesRead();
    // Read again, result dropped: on the very first run this second read is what creates the file.
    StatesRead();
    gLS.sSkillPoints = gLS.sSkillPointsTotal - gAttrBattery - gAttrHealth;
    WritePoints();
}

static u8 CanSpend(s32 attr)
{
    return gLS.sSkillPoints >= 1 && attr < 3;
}

static u8 CanRefund(s32 attr)
{
    return gLS.sSkillPoints + 1 <= gLS.sSkillPointsTotal && attr >= 1;
}

static void Spend(s32* pAttr)
{
    gLS.sSkillPoints--;
    (*pAttr)++;
    WritePoints();
}

static void Refund(s32* pAttr)
{
    gLS.sSkillPoints++;
    (*pAttr)--;
    WritePoints();
}

void AttrPanelByKeyboard(s32 item)
{
    if (item == LS_ITEM_BATT_INC && CanSpend(gAttrBattery))
        Spend(&gAttrBattery);
    // The keyboard's battery-down tests the hit points, not the battery: with gAttrHealth at least 1 it lowers
    // the battery below 0, as long as the points stay within the total. A quirk of this screen that stays.
    else if (item == LS_ITEM_BATT_DEC && CanRefund(gAttrHealth))
        Refund(&gAttrBattery);
    else if (item == LS_ITEM_HP_INC && CanSpend(gAttrHealth))
        Spend(&gAttrHealth);
    else if (item == LS_ITEM_HP_DEC && CanRefund(gAttrHealth))
        Refund(&gAttrHealth);
}

void AttrPanelByMouse()
{
    if (!PointerReleased())
        return;
    // In this fixed order; the first button under the cursor ends the step, whether or not it could apply.
    if (PointerOver(gLSCursor, sBattInc))
    {
        if (CanSpend(gAttrBattery))
            Spend(&gAttrBattery);
    }
    else if (PointerOver(gLSCursor, sHpInc))
    {
        if (CanSpend(gAttrHealth))
            Spend(&gAttrHealth);
    }
    else if (PointerOver(gLSCursor, sBattDec))
    {
        if (CanRefund(gAttrBattery))
            Refund(&gAttrBattery);
    }
    else if (PointerOver(gLSCursor, sHpDec))
    {
        if (CanRefund(gAttrHealth))
            Refund(&gAttrHealth);
    }
}

// Pips are shown by count in slot order, so nothing is created or destroyed when an attribute changes.
u8 AttrPipShown(const GameObjInst* pInst)
{
    u32 type = pInst->pObject->type;
    if (type != TYPE_STAT_BAR_BATT && type != TYPE_STAT_BAR_HP)
        return 1;
    s32 limit = type == TYPE_STAT_BAR_BATT ? gAttrBattery : gAttrHealth;
    s32 before = 0;
    GameObjPool* pPool = LSPool();
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        const GameObjInst* pOther = &pPool->sGameObjInstList[i];
        if (pOther == pInst)
            break;
        if ((pOther->flag & FLAG_ACTIVE) && pOther->pObject->type == type)
            before++;
    }
    return before < limit;
}
