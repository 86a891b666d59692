#!/bin/bash
# play.sh STATE SCRIPT [args]: plays a replay script in a virtual window and prints the main values of each probe
# line, one line a probe: the level author's loop. Only the frames of the script's shots are drawn, so a long
# script plays in seconds. Needs build/test/quillon-replay.
cd "$(dirname "$0")/../.."
SDL_AUDIODRIVER=dummy timeout 300 xvfb-run -a -s "-screen 0 1920x1080x24" build/test/quillon-replay --draw shots --state $1 --script $2 --documents "${DOCS:-/tmp/quillon-play-docs}" ${3:-} 2>&1 | grep "^probe" | /usr/bin/python3 -c '
import sys
keys=["step","state","x","y","vx","vy","sGravityInverted","sOnGround","sHitPoints","sBatteryUsed","sWon","sLost","sEndTimer","plat1x","wallx","sBoulderArmed"]
short={"sGravityInverted":"inv","sOnGround":"gnd","sHitPoints":"hp","sBatteryUsed":"bat","sEndTimer":"end"}
for line in sys.stdin:
    d=dict(p.split("=",1) for p in line.split()[1:] if "=" in p)
    print(" ".join("%s=%s"%(short.get(k,k),d[k][:8]) for k in keys if k in d))
'
