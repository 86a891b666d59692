// level_0.cpp -- the first level: tutorial boxes, the rising wall, no damage flash or ghost. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(0, LEVEL_ROW_0)
