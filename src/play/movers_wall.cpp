// movers_wall.cpp -- the travelling wall and its switch of the music to the chase.
#include "fmodsound.h"
#include "movers.h"
#include "playcommon.h"

static void ChaseMusic()
{
    MusicSetTrack(kMusicChallengeTrack);
    MusicPlay(0);
}

void MovingWallRun(GameObjInst* pInst, f32 speed, f32 minX, f32 minY, f32 maxX, f32 maxY)
{
    (void)minY;
    (void)maxY;
    if (maxX > pInst->posCurr.x && pInst->posCurr.x > minX)
    {
        pInst->velCurr.x = speed;
        // The track changes on the first frame of travel only, for as long as the counter is not reset.
        gPlay.sLevelMusicCount++;
        if (gPlay.sLevelMusicCount == 1)
            ChaseMusic();
    }
    else
    {
        pInst->velCurr.x = 0.0f;
        if (gPlay.sLevelMusicCount == 1)
            ChaseMusic();
    }
}
