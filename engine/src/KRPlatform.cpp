// KRPlatform.cpp -- which back-end is in use, and the key-table rules both back-ends share.
#include "KRPlatform.h"

const KRPlatform* gKRPlatform = &gKRPlatformSDL;

void KRPlatformUse(const KRPlatform* pPlatform)
{
    gKRPlatform = pPlatform;
}

void KRPlatformSetGenericModifiers(unsigned char keys[256])
{
    if ((keys[0xA0] | keys[0xA1]) & 0x80) keys[0x10] |= 0x80;
    if ((keys[0xA2] | keys[0xA3]) & 0x80) keys[0x11] |= 0x80;
    if ((keys[0xA4] | keys[0xA5]) & 0x80) keys[0x12] |= 0x80;
}
