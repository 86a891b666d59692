// level_2.cpp -- the third level. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(2, LEVEL_ROW_2)
