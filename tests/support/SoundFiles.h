// SoundFiles.h -- sound files the tests make themselves, and the mix read back from SDL's disk audio driver, so
// that levels and positions can be measured exactly.
//
// Every file is 16-bit PCM, stereo, 44100 frames a second, the mixer's own format, so nothing is converted on
// the way: a frame of value v played at mixer level L (0..128) comes out as v * L / 128.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

const int kSoundTestRate = 44100;

// Writes a WAV file whose frame i has the value sample(i) on both sides.
bool WriteWavFile(const std::string& path, int frames, const std::function<int16_t(int)>& sample);
// A sine of 441 Hz (100 frames a period) whose peaks are exactly amplitude.
std::string WriteToneFile(const std::string& dir, const char* name, double seconds, int16_t amplitude);
// A constant value: the mix then tells which sounds play and at which level, by their sum.
std::string WriteLevelFile(const std::string& dir, const char* name, double seconds, int16_t value);
// A ramp, sign * (kRampBase + frame / kRampFramesPerStep): the value tells the position in the file, and the sign
// which file it is.
const int kRampBase = 100;
const int kRampFramesPerStep = 32;
std::string WriteRampFile(const std::string& dir, const char* name, double seconds, int sign);

// Points SDL's audio at the disk driver, writing into a fresh file in dir; call before MusicInit. With a delay of
// 0 the driver runs flat out (hundreds of times real time); each millisecond of delay per mixing buffer of 1024
// frames slows it to about 23 times real time divided by the delay. Returns the file's path.
std::string UseDiskAudio(const std::string& dir, int delayMs = 0);
// Frames of the mix surely written after every call made so far: those on disk plus what may sit in buffers.
int64_t DiskAudioMark(const std::string& path);
// Frames on disk so far: every one of them was mixed before the calls made after this.
int64_t DiskAudioWritten(const std::string& path);
// The left side of frames [first, first + count) of the mix, waiting up to 20 s for them to be written.
std::vector<int16_t> DiskAudioRead(const std::string& path, int64_t first, int count);
// The part of the mix right after every call made so far: count frames from DiskAudioMark.
std::vector<int16_t> DiskAudioNext(const std::string& path, int count);

int PeakOf(const std::vector<int16_t>& samples);
double RmsOf(const std::vector<int16_t>& samples);
// Every sample equal to value (constant level files).
bool AllEqual(const std::vector<int16_t>& samples, int value);
