// KRPlatformSDLKeys.h -- SDL scancodes onto the virtual-key numbers of the game's key table.
#pragma once

// The virtual-key number for an SDL scancode, or 0 when the game has no name for that key.
int KRPlatformSDLKeyFromScancode(int scancode);
