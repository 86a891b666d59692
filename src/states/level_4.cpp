// level_4.cpp -- the fifth level: the platform that walks a rectangle. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(4, LEVEL_ROW_4)
