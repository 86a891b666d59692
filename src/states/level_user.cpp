// level_user.cpp -- the user level, read from the save folder by its name. Its differences are its row of the
// level table.
#include "level_state.h"
#include "level_states.h"

LEVEL_STATE_ENTRY_POINTS(User, LEVEL_ROW_USER)
