// KRTypes.h -- the fixed-width names the Kestrel Runtime writes its interfaces in.
#ifndef KR_TYPES_H
#define KR_TYPES_H

#include <cstdint>

typedef std::int8_t   s8;
typedef std::uint8_t  u8;
typedef std::int16_t  s16;
typedef std::uint16_t u16;
typedef std::int32_t  s32;
typedef std::uint32_t u32;
typedef std::int64_t  s64;
typedef std::uint64_t u64;
typedef float         f32;
typedef double        f64;

static_assert(sizeof(f32) == 4, "the engine's floats are 32-bit");
static_assert(sizeof(f64) == 8, "the engine's doubles are 64-bit");

#endif // KR_TYPES_H
