// SoundFiles.cpp -- WAV writing, and reading back the mix that SDL's disk audio driver writes.
#include "SoundFiles.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <thread>

namespace {

void PutU32(std::vector<unsigned char>& out, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        out.push_back((unsigned char)(value >> (8 * i)));
}

void PutU16(std::vector<unsigned char>& out, uint16_t value)
{
    out.push_back((unsigned char)value);
    out.push_back((unsigned char)(value >> 8));
}

int64_t FileSize(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0 ? (int64_t)info.st_size : 0;
}

// The driver writes through a stdio buffer, and one mixing buffer may be under way when a call is made.
const int64_t kFramesInFlight = 8192;

} // namespace

bool WriteWavFile(const std::string& path, int frames, const std::function<int16_t(int)>& sample)
{
    const uint32_t dataBytes = (uint32_t)frames * 4;
    std::vector<unsigned char> out;
    out.reserve(44);
    out.insert(out.end(), {'R', 'I', 'F', 'F'});
    PutU32(out, 36 + dataBytes);
    out.insert(out.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
    PutU32(out, 16);
    PutU16(out, 1); // PCM
    PutU16(out, 2); // stereo
    PutU32(out, kSoundTestRate);
    PutU32(out, kSoundTestRate * 4);
    PutU16(out, 4);
    PutU16(out, 16);
    out.insert(out.end(), {'d', 'a', 't', 'a'});
    PutU32(out, dataBytes);
    // Both sides of every frame, little-endian, filled in place: test files run to megabytes.
    out.resize(44 + (size_t)dataBytes);
    unsigned char* data = out.data() + 44;
    for (int i = 0; i < frames; ++i)
    {
        uint16_t value = (uint16_t)sample(i);
        data[4 * i] = data[4 * i + 2] = (unsigned char)value;
        data[4 * i + 1] = data[4 * i + 3] = (unsigned char)(value >> 8);
    }
    FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        return false;
    bool written = std::fwrite(out.data(), 1, out.size(), file) == out.size();
    return std::fclose(file) == 0 && written;
}

std::string WriteToneFile(const std::string& dir, const char* name, double seconds, int16_t amplitude)
{
    std::string path = dir + "/" + name;
    WriteWavFile(path, (int)(seconds * kSoundTestRate), [amplitude](int i) {
        return (int16_t)std::lround(amplitude * std::sin(2.0 * M_PI * (i % 100) / 100.0));
    });
    return path;
}

std::string WriteLevelFile(const std::string& dir, const char* name, double seconds, int16_t value)
{
    std::string path = dir + "/" + name;
    WriteWavFile(path, (int)(seconds * kSoundTestRate), [value](int) { return value; });
    return path;
}

std::string WriteRampFile(const std::string& dir, const char* name, double seconds, int sign)
{
    std::string path = dir + "/" + name;
    WriteWavFile(path, (int)(seconds * kSoundTestRate),
                 [sign](int i) { return (int16_t)(sign * (kRampBase + i / kRampFramesPerStep)); });
    return path;
}

std::string UseDiskAudio(const std::string& dir, int delayMs)
{
    std::string path = dir + "/mix.raw";
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", path.c_str(), 1);
    setenv("SDL_DISKAUDIODELAY", std::to_string(delayMs).c_str(), 1);
    return path;
}

int64_t DiskAudioMark(const std::string& path)
{
    return FileSize(path) / 4 + kFramesInFlight;
}

int64_t DiskAudioWritten(const std::string& path)
{
    return FileSize(path) / 4;
}

std::vector<int16_t> DiskAudioRead(const std::string& path, int64_t first, int count)
{
    const int64_t wanted = (first + count) * 4;
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (FileSize(path) < wanted && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));

    std::vector<int16_t> left;
    FILE* file = std::fopen(path.c_str(), "rb");
    if (!file)
        return left;
    std::vector<int16_t> frames((size_t)count * 2);
    size_t got = 0;
    if (std::fseek(file, (long)(first * 4), SEEK_SET) == 0)
        got = std::fread(frames.data(), 4, (size_t)count, file);
    std::fclose(file);
    for (size_t i = 0; i < got; ++i)
        left.push_back(frames[i * 2]);
    return left;
}

std::vector<int16_t> DiskAudioNext(const std::string& path, int count)
{
    return DiskAudioRead(path, DiskAudioMark(path), count);
}

int PeakOf(const std::vector<int16_t>& samples)
{
    int peak = 0;
    for (int16_t s : samples)
        peak = std::max(peak, std::abs((int)s));
    return peak;
}

double RmsOf(const std::vector<int16_t>& samples)
{
    if (samples.empty())
        return 0.0;
    double sum = 0.0;
    for (int16_t s : samples)
        sum += (double)s * s;
    return std::sqrt(sum / samples.size());
}

bool AllEqual(const std::vector<int16_t>& samples, int value)
{
    if (samples.empty())
        return false;
    for (int16_t s : samples)
        if (s != value)
            return false;
    return true;
}
