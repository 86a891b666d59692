// level_1.cpp -- the second level. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(1, LEVEL_ROW_1)
