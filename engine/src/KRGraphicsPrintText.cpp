// KRGraphicsPrintText.cpp -- the text of KRGfxPrint: its format is filled from the arguments that follow it.
//
// KRGfxPrint has always read the values of its conversions from its own argument list, right after the format:
// x and y, then the three colour floats, laid out as 32-bit words (an integer takes one word, a double two, the
// floats as their bits). This room keeps that: "%d,%d" prints the position. A conversion past the five words reads
// zero; a text conversion (%s) has no text to point at and prints nothing.
#include "KRGraphicsInternal.h"

#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

struct WordList
{
    u32 words[5];
    int next;

    u32 Take() { return next < 5 ? words[next++] : (++next, 0u); }
    u64 TakeTwo()
    {
        u64 low = Take();
        u64 high = Take();
        return low | (high << 32);
    }
};

u32 FloatBits(float value)
{
    u32 bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

// Formats one conversion; conversion holds the flags, width and precision with '%' and without length or type.
std::string FormatOne(std::string conversion, char type, bool wide, WordList* pArgs)
{
    char piece[512];
    piece[0] = 0;
    switch (type)
    {
    case 'd':
    case 'i':
        if (wide)
            std::snprintf(piece, sizeof(piece), (conversion + "lld").c_str(), (long long)pArgs->TakeTwo());
        else
            std::snprintf(piece, sizeof(piece), (conversion + type).c_str(), (int)pArgs->Take());
        break;
    case 'u':
    case 'o':
    case 'x':
    case 'X':
        if (wide)
            std::snprintf(piece, sizeof(piece), (conversion + "ll" + type).c_str(), (unsigned long long)pArgs->TakeTwo());
        else
            std::snprintf(piece, sizeof(piece), (conversion + type).c_str(), (unsigned)pArgs->Take());
        break;
    case 'c': std::snprintf(piece, sizeof(piece), (conversion + 'c').c_str(), (int)(unsigned char)pArgs->Take()); break;
    case 'f':
    case 'F':
    case 'e':
    case 'E':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
    {
        u64 bits = pArgs->TakeTwo();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof(value));
        std::snprintf(piece, sizeof(piece), (conversion + type).c_str(), value);
        break;
    }
    case 'p': std::snprintf(piece, sizeof(piece), "%08X", (unsigned)pArgs->Take()); break;
    case 's':
    case 'n': pArgs->Take(); break;
    default: return conversion + type;
    }
    return piece;
}

} // namespace

void KRGfxFormatPrintText(char out[256], const char* format, int32_t x, int32_t y, float red, float green,
                          float blue)
{
    WordList args = {{(u32)x, (u32)y, FloatBits(red), FloatBits(green), FloatBits(blue)}, 0};
    std::string text;
    const char* p = format;
    while (*p && text.size() < 255)
    {
        if (*p != '%')
        {
            text += *p++;
            continue;
        }
        ++p;
        if (*p == '%')
        {
            text += *p++;
            continue;
        }
        std::string conversion = "%";
        while (*p && std::strchr("-+ #0", *p))
            conversion += *p++;
        // A star takes its number from the argument words too.
        if (*p == '*')
        {
            conversion += std::to_string((int)args.Take());
            ++p;
        }
        while (std::isdigit((unsigned char)*p))
            conversion += *p++;
        if (*p == '.')
        {
            conversion += *p++;
            if (*p == '*')
            {
                conversion += std::to_string((int)args.Take());
                ++p;
            }
            while (std::isdigit((unsigned char)*p))
                conversion += *p++;
        }
        bool wide = false;
        while (*p && std::strchr("hlLqjzt", *p))
        {
            // On a 32-bit argument list only long long, intmax and long double fill two words.
            if ((*p == 'l' && p[1] == 'l') || *p == 'q' || *p == 'j')
                wide = true;
            p += (*p == 'l' && p[1] == 'l') ? 2 : 1;
        }
        if (!*p)
            break;
        text += FormatOne(conversion, *p++, wide, &args);
    }
    if (text.size() > 255)
        text.resize(255);
    std::memcpy(out, text.c_str(), text.size() + 1);
}
