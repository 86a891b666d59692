// main.cpp -- the process entry: start up at the splash screen and run the game until it quits.
#include "gameloop.h"
#include "gamestatelist.h"

int main()
{
    GameStartUp(GS_SPLASH);
    GameMainLoop();
    return 0;
}
