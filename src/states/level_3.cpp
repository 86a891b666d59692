// level_3.cpp -- the fourth level: four moving platforms and a drop wall. Its differences are its row of the level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(3, LEVEL_ROW_3)
