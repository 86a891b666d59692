// level_5.cpp -- the last level: the pursuing boulder. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(5, LEVEL_ROW_5)
