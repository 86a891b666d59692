// planted_leak.cpp -- a program of the sanitizer tree that forgets two SDL objects the game would own: a surface and
// a decoded sound (a mixer chunk). Run under LeakSanitizer with the project's suppressions, both must be reported:
// the suppressions may hide what the system libraries keep for themselves, never what the game forgets.
#include <SDL.h>
#include <SDL_mixer.h>
#include <cstdio>

// Kept out of line, so that the report names the function that forgot them.
__attribute__((noinline)) static void ForgetASurface()
{
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormat(0, 64, 64, 32, SDL_PIXELFORMAT_ARGB8888);
    std::printf("surface %s\n", surface ? "made" : SDL_GetError());
}

__attribute__((noinline)) static void ForgetAChunk()
{
    Mix_Chunk* chunk = Mix_LoadWAV("RockImpact CTE02_24.1.wav");
    std::printf("chunk %s\n", chunk ? "decoded" : Mix_GetError());
}

int main()
{
    if (SDL_Init(SDL_INIT_AUDIO) != 0 || Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) != 0)
    {
        std::printf("no audio: %s\n", SDL_GetError());
        return 2;
    }
    ForgetASurface();
    ForgetAChunk();
    std::fflush(stdout);
    return 0;
}
