// levelfile.h -- level files: three text lines per object, kind, x, y, as decimal integers.
//
// The six levels, the user level, the editor, the main menu scene and the credits scene all read this one
// format, each into its own pool through its own creation routine; only the editor writes it.
#pragma once

#include "gameobj.h"

// The scale a reader gives each kind. Levels, the user level and the editor know the battery pickup's scale;
// the main menu and credits scenes have no row for it and give it 1.
enum LevelFileScales
{
    LEVEL_FILE_SCALES_PLAY,
    LEVEL_FILE_SCALES_SCENE,
};

f32 LevelFileScale(s32 kind, LevelFileScales table);

// Reads the file through create, one object per record, at rest, direction 0. Each kind 8 record's result
// (null too, when the pool is full) goes to *ppCharacter. Returns whether the file could be opened; when not,
// nothing is created.
bool LevelFileRead(const char* path, GameObjCreateFn create, GameObjInst** ppCharacter, LevelFileScales table);

// Reads the user level named by gUserLevelName from the save folder, as LevelFileRead with the play scales.
bool LevelFileReadUser(GameObjCreateFn create, GameObjInst** ppCharacter);

// Writes every live instance of the pool that is part of the level (not the cursor, not the hand, not
// furniture), in slot order, positions cut toward zero. Returns whether the file could be opened.
bool LevelFileWrite(const char* path, const GameObjPool* pPool);

// The editor's save: LevelFileWrite into the user level's file. When the file can't be opened the save folder
// is created and nothing is written; a second save then succeeds.
void LevelFileSaveUser(const GameObjPool* pPool);
