// float_bits.h -- helpers for tests that compare 32-bit floats bit for bit.
#ifndef QUILLON_TESTS_FLOAT_BITS_H
#define QUILLON_TESTS_FLOAT_BITS_H

#include <cstdint>
#include <cstring>

inline std::uint32_t FloatBits(float value)
{
    std::uint32_t bits;
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

#endif // QUILLON_TESTS_FLOAT_BITS_H
