// progress.h -- the progress file "States.txt" in the save folder: six level flags, the battery attribute and
// the hit point attribute, one character each.
//
//   line 1: six characters, flags 0 to 5, '0' not finished, '1' finished
//   line 2: one character, gAttrBattery
//   line 3: one character, gAttrHealth, no line end behind it
//
// A value is stored as the character whose code is the value plus '0', with no range check (so -1 is '/'),
// and read back as the character's code less '0'.
#pragma once

#include "KRTypes.h"

const int LEVEL_FLAG_NUM = 6;

// Skill points spent on the torch battery and on hit points; written by level selection, read by every level's
// Init and by the credits. Zero at program start.
extern s32 gAttrBattery;
extern s32 gAttrHealth;

// The six level flags of line 1 (sLevelFlags), owned by level selection. Zero at program start.
s32* StatesLevelFlags();

// Reads the file into the flags and the two attributes; returns how many '1' characters line 1 holds, also
// beyond the sixth. When the file can't be opened it calls StatesWrite instead, reads nothing and returns 0.
s32 StatesRead();

// Writes the file whole. When it can't be opened the save folder is created and nothing is written: the
// next call succeeds.
void StatesWrite();

// Sets flag index to 1 in the file itself, leaving everything else in the file as it was.
void StatesMarkLevel(s32 index);
