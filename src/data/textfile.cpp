// textfile.cpp -- reading text files the same way whichever line ends they carry.
//
// Owns:    nothing; stateless helpers over stdio.
// Used by: the level file readers and the progress file.
#include "textfile.h"

#include <sys/stat.h>

FILE* TextFileOpen(const char* path, const char* mode)
{
    FILE* pFile = std::fopen(path, mode);
    if (!pFile)
        return nullptr;

    struct stat info;
    if (fstat(fileno(pFile), &info) == 0 && S_ISDIR(info.st_mode))
    {
        std::fclose(pFile);
        return nullptr;
    }
    return pFile;
}

int TextFileGetc(FILE* pFile)
{
    int c = std::fgetc(pFile);
    if (c != '\r')
        return c;

    int next = std::fgetc(pFile);
    if (next == '\n')
        return '\n';
    if (next == EOF)
    {
        // The look-ahead must not end the file early: the CR itself was read, the next read is the one that
        // runs into the end.
        std::clearerr(pFile);
        return '\r';
    }
    std::ungetc(next, pFile);
    return '\r';
}

char* TextFileGets(char* buffer, int size, FILE* pFile)
{
    if (size <= 0)
        return nullptr;

    int count = 0;
    while (count < size - 1)
    {
        int c = TextFileGetc(pFile);
        if (c == EOF)
            break;
        buffer[count++] = (char)c;
        if (c == '\n')
            break;
    }
    if (count == 0 && size > 1)
        return nullptr;
    buffer[count] = 0;
    return buffer;
}
