// editor_undo.cpp -- the editor's undo history: 2048 records behind a zero sentinel, no redo.
//
// Owns:    the rules of EditorHistory (editor_internal.h).
// Used by: placing and snapping (pushes), right click (pushes), Left Control with Z (steps).
#include "editor_internal.h"

#include <cstring>

void EditorUndoClear(EditorHistory* pHistory)
{
    std::memset(pHistory->sUndoStore, 0, sizeof(pHistory->sUndoStore));
    pHistory->sUndoCount = 0;
}

void EditorUndoPush(EditorHistory* pHistory, u32 op, GameObjInst* pInst)
{
    EditorUndoRecord* sUndoList = pHistory->sUndoStore + 1;
    if (pHistory->sUndoCount >= EDITOR_UNDO_MAX)
    {
        // A full history forgets its oldest step. The move runs only on a placing, a snap or a deletion, never
        // in a frame without a click, and keeps the sentinel in front untouched.
        std::memmove(sUndoList, sUndoList + 1, sizeof(EditorUndoRecord) * (EDITOR_UNDO_MAX - 1));
        pHistory->sUndoCount = EDITOR_UNDO_MAX - 1;
    }
    sUndoList[pHistory->sUndoCount].op = op;
    sUndoList[pHistory->sUndoCount].pInst = pInst;
    pHistory->sUndoCount += 1;
}

void EditorUndoStep(EditorHistory* pHistory, GameObjPool* pPool)
{
    EditorUndoRecord* sUndoList = pHistory->sUndoStore + 1;
    // At count 0 this is the sentinel, which has op 0 and so falls through both tests.
    const EditorUndoRecord* pRecord = &sUndoList[(s32)pHistory->sUndoCount - 1];

    if (pRecord->op == EDITOR_UNDO_DELETED && pHistory->sUndoCount > 0)
    {
        pHistory->sUndoCount -= 1;
        // A record always names a slot of this visit's pool (the history is cleared at Load), so the slot's
        // template pointer is one of this pool's; a null slot is still refused.
        const GameObjInst* pSlot = pRecord->pInst;
        if (!pSlot || !pSlot->pObject)
            return;
        KRVec2 pos = pSlot->posCurr;
        KRVec2 zero = {0.0f, 0.0f};
        gameObjInstCreate(pPool, pSlot->pObject->type, pSlot->scale, &pos, &zero, 0.0f, &zero, 0, 0, 0.0f, 0.0f);
        return;
    }
    if (pRecord->op == EDITOR_UNDO_PLACED && pHistory->sUndoCount > 0)
    {
        pHistory->sUndoCount -= 1;
        gameObjInstDestroy(pRecord->pInst);
    }
}
