// KRPlatformScripted.cpp -- a back-end whose input and clock are a script, for tests.
//
// Owns:    the script (held keys, cursor moves, frame times, window messages), the step count, a virtual counter.
// Borrows: the SDL back-end's window and OpenGL context, so drawing is real and can be read back; it only switches
//          the rasterizer off for the steps whose frames nobody looks at.
#include "KRPlatformScripted.h"

#include <GL/glew.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct KeyHold
{
    unsigned char key;
    int firstStep;
    int lastStep;
};

struct Point
{
    int x;
    int y;
};

// 60 million ticks a second, so that a frame of 1/60 s is a whole number of ticks.
const uint64_t kTicksPerSecond = 60000000ull;

} // namespace

static std::vector<KeyHold> sKeyHolds;
static std::map<int, Point> sCursorMoves;
static std::map<int, double> sFrameTimes;
static std::map<int, int> sActivations;
static double sDefaultFrameTime = 1.0 / 60.0;
static int sCloseStep = -1;
static int sScreenWidth = 1920;
static int sScreenHeight = 1080;
static void (*sPresentHook)(int step) = nullptr;
static int sStep = 0;
static uint64_t sCounter = 0;
static int sCursorVisible = 1;
static bool sDrawEveryStep = true;
static std::set<int> sDrawnSteps;
static bool sHaveContext = false;
static int sPresentCount = 0;
static bool sPresentedDrawn = true;
static int sShownWidth = -1;
static int sShownHeight = -1;

// Switches the rasterizer for the step under way.
static void ApplyDrawing()
{
    if (!sHaveContext)
        return;
    if (KRScriptStepDrawn(sStep))
        glDisable(GL_RASTERIZER_DISCARD);
    else
        glEnable(GL_RASTERIZER_DISCARD);
}

void KRScriptReset()
{
    sKeyHolds.clear();
    sCursorMoves.clear();
    sFrameTimes.clear();
    sActivations.clear();
    sDefaultFrameTime = 1.0 / 60.0;
    sCloseStep = -1;
    sScreenWidth = 1920;
    sScreenHeight = 1080;
    sPresentHook = nullptr;
    sStep = 0;
    sCounter = 0;
    sCursorVisible = 1;
    sPresentCount = 0;
    KRScriptDrawEveryStep();
}

void KRScriptHoldKey(unsigned char key, int firstStep, int lastStep)
{
    sKeyHolds.push_back({key, firstStep, lastStep});
}

void KRScriptSetCursor(int step, int x, int y)
{
    sCursorMoves[step] = {x, y};
}

void KRScriptSetFrameTime(int step, double seconds)
{
    sFrameTimes[step] = seconds;
}

void KRScriptSetDefaultFrameTime(double seconds)
{
    sDefaultFrameTime = seconds;
}

void KRScriptCloseWindowAt(int step)
{
    sCloseStep = step;
}

void KRScriptActivateAt(int step, int active)
{
    sActivations[step] = active;
}

void KRScriptSetScreenSize(int width, int height)
{
    sScreenWidth = width;
    sScreenHeight = height;
}

void KRScriptSetPresentHook(void (*hook)(int step))
{
    sPresentHook = hook;
}

void KRScriptDrawEveryStep()
{
    sDrawEveryStep = true;
    sDrawnSteps.clear();
    ApplyDrawing();
}

void KRScriptDrawNoStep()
{
    sDrawEveryStep = false;
    sDrawnSteps.clear();
    ApplyDrawing();
}

void KRScriptDrawStep(int step)
{
    sDrawnSteps.insert(step);
    ApplyDrawing();
}

int KRScriptStepDrawn(int step)
{
    return sDrawEveryStep || sDrawnSteps.count(step) != 0;
}

int KRScriptFrameDrawn()
{
    return sPresentCount > 0 ? sPresentedDrawn : KRScriptStepDrawn(sStep);
}

int KRScriptGetStep()
{
    return sStep;
}

int KRScriptCursorVisible()
{
    return sCursorVisible;
}

int KRScriptKeyFromName(const char* name)
{
    static const struct
    {
        const char* name;
        int key;
    } kNamed[] = {
        {"LButton", 0x01}, {"RButton", 0x02}, {"MButton", 0x04}, {"Backspace", 0x08}, {"Tab", 0x09},
        {"Return", 0x0D},  {"Shift", 0xA0},   {"RShift", 0xA1},  {"Control", 0xA2},   {"Escape", 0x1B},
        {"Space", 0x20},   {"Left", 0x25},    {"Up", 0x26},      {"Right", 0x27},     {"Down", 0x28},
        {"Delete", 0x2E},  {"Minus", 0xBD},   {"F1", 0x70},      {"CapsLock", 0x14},
    };
    for (const auto& entry : kNamed)
        if (std::strcmp(entry.name, name) == 0)
            return entry.key;
    if (std::strlen(name) == 1)
    {
        char c = name[0];
        if (c >= 'a' && c <= 'z')
            c = (char)(c - 'a' + 'A');
        if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'))
            return c;
        return -1;
    }
    char* end = nullptr;
    long value = std::strtol(name, &end, 0);
    if (end && *end == 0 && value > 0 && value < 256)
        return (int)value;
    return -1;
}

static bool ParseRange(const std::string& text, int* pFirst, int* pLast)
{
    char dash = 0;
    std::istringstream in(text);
    if (!(in >> *pFirst))
        return false;
    *pLast = *pFirst;
    if (in >> dash)
    {
        if (dash != '-' || !(in >> *pLast))
            return false;
    }
    return *pFirst >= 0 && *pLast >= *pFirst;
}

static bool ParseLine(const std::string& line)
{
    std::istringstream in(line);
    std::string command;
    if (!(in >> command) || command[0] == '#')
        return true;
    if (command == "key")
    {
        std::string name, range;
        int first = 0, last = 0;
        if (!(in >> name >> range) || !ParseRange(range, &first, &last))
            return false;
        int key = KRScriptKeyFromName(name.c_str());
        if (key < 0)
            return false;
        KRScriptHoldKey((unsigned char)key, first, last);
        return true;
    }
    if (command == "cursor")
    {
        int x = 0, y = 0, step = 0;
        if (!(in >> x >> y >> step))
            return false;
        KRScriptSetCursor(step, x, y);
        return true;
    }
    if (command == "frametime")
    {
        double seconds = 0.0;
        int step = 0;
        if (!(in >> seconds) || seconds < 0.0)
            return false;
        if (in >> step)
            KRScriptSetFrameTime(step, seconds);
        else
            KRScriptSetDefaultFrameTime(seconds);
        return true;
    }
    if (command == "close")
    {
        int step = 0;
        if (!(in >> step))
            return false;
        KRScriptCloseWindowAt(step);
        return true;
    }
    if (command == "screen")
    {
        int width = 0, height = 0;
        if (!(in >> width >> height) || width <= 0 || height <= 0)
            return false;
        KRScriptSetScreenSize(width, height);
        return true;
    }
    return false;
}

int KRScriptParse(const char* text)
{
    std::istringstream in(text ? text : "");
    std::string line;
    int lineNumber = 0;
    while (std::getline(in, line))
    {
        ++lineNumber;
        if (!ParseLine(line))
        {
            std::fprintf(stderr, "script line %d not understood: %s\n", lineNumber, line.c_str());
            return 0;
        }
    }
    return 1;
}

static void ScriptedGetScreenSize(int* pWidth, int* pHeight)
{
    *pWidth = sScreenWidth;
    *pHeight = sScreenHeight;
}

static long IgnoreMessage(unsigned int, long)
{
    return 0;
}

static void ScriptedPumpEvents(KRWindowProc proc)
{
    // The real window's own events are drained and dropped: only the script speaks.
    gKRPlatformSDL.PumpEvents(IgnoreMessage);

    auto activation = sActivations.find(sStep);
    if (activation != sActivations.end())
        proc(KR_WM_ACTIVATE, activation->second);
    if (sStep == sCloseStep)
        proc(KR_WM_DESTROY, 0);
    ++sStep;
    ApplyDrawing();
}

static int ScriptedCreateGLContext()
{
    if (!gKRPlatformSDL.CreateGLContext())
        return 0;
    sHaveContext = true;
    sShownWidth = -1;
    sShownHeight = -1;
    ApplyDrawing();
    return 1;
}

static void ScriptedDeleteGLContext()
{
    sHaveContext = false;
    gKRPlatformSDL.DeleteGLContext();
}

static void ScriptedPresent()
{
    sPresentedDrawn = KRScriptStepDrawn(sStep);
    ++sPresentCount;
    if (sPresentHook)
        sPresentHook(sStep);
    // An undrawn frame is not shown either, unless the window's size has changed since the last frame shown: the
    // software renderer takes a window's new size for its buffers only when a frame is shown.
    int width = 0, height = 0;
    gKRPlatformSDL.GetClientSize(&width, &height);
    if (sPresentedDrawn || width != sShownWidth || height != sShownHeight)
    {
        gKRPlatformSDL.Present();
        sShownWidth = width;
        sShownHeight = height;
    }

    auto frameTime = sFrameTimes.find(sStep);
    double seconds = frameTime != sFrameTimes.end() ? frameTime->second : sDefaultFrameTime;
    sCounter += (uint64_t)std::llround(seconds * (double)kTicksPerSecond);
}

static void ScriptedGetKeyboardState(unsigned char keys[256])
{
    std::memset(keys, 0, 256);
    for (const KeyHold& hold : sKeyHolds)
        if (sStep >= hold.firstStep && sStep <= hold.lastStep)
            keys[hold.key] = 0x80;
    KRPlatformSetGenericModifiers(keys);
}

static void ScriptedGetCursorPos(int* pX, int* pY)
{
    *pX = 0;
    *pY = 0;
    auto move = sCursorMoves.upper_bound(sStep);
    if (move == sCursorMoves.begin())
        return;
    --move;
    *pX = move->second.x;
    *pY = move->second.y;
}

static void ScriptedSetCursorVisible(int visible)
{
    sCursorVisible = visible;
}

static uint64_t ScriptedGetCounter()
{
    return sCounter;
}

static uint64_t ScriptedGetFrequency()
{
    return kTicksPerSecond;
}

static void ScriptedWait(double seconds)
{
    // Waiting is instant: the clock jumps, at least by one tick so that a spin always ends.
    uint64_t ticks = (uint64_t)std::ceil(seconds * (double)kTicksPerSecond);
    sCounter += ticks > 0 ? ticks : 1;
}

const KRPlatform gKRPlatformScripted = {
    "scripted",
    gKRPlatformSDL.CreateWindow,
    gKRPlatformSDL.SetWindowTitle,
    ScriptedGetScreenSize,
    gKRPlatformSDL.SetFullScreen,
    gKRPlatformSDL.GetClientSize,
    gKRPlatformSDL.GetWindowHandle,
    ScriptedPumpEvents,
    gKRPlatformSDL.DestroyWindow,
    ScriptedCreateGLContext,
    ScriptedDeleteGLContext,
    ScriptedPresent,
    ScriptedGetKeyboardState,
    ScriptedGetCursorPos,
    ScriptedSetCursorVisible,
    ScriptedGetCounter,
    ScriptedGetFrequency,
    ScriptedWait,
    gKRPlatformSDL.GetLastError,
};
