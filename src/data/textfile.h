// textfile.h -- text files read as a text-mode stream reads them: a CR right before an LF is dropped, so that
// files with CR LF line ends read exactly like files with LF line ends. Writing needs nothing special: a line
// end written is one LF.
#pragma once

#include <cstdio>

// fopen, except that a folder is refused as a file that can't be opened (the stdio of this system would open
// it and then fail every read).
FILE* TextFileOpen(const char* path, const char* mode);

// fgetc of a text-mode stream. The end-of-file flag is set exactly when a read runs into the end, as with fgetc:
// looking ahead behind a CR never sets it.
int TextFileGetc(FILE* pFile);

// fgets of a text-mode stream: at most size - 1 characters, up to and including a line end, then the terminator.
// Returns null and leaves buffer as it was when the end of the file comes before any character.
char* TextFileGets(char* buffer, int size, FILE* pFile);
