// playcommon.cpp -- the one record of the common play variables, as the program starts.
#include "playcommon.h"

PlayCommon gPlay = {
    0, // sGravityInverted
    1, // sOnGround: the first level begins as if standing
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
};
