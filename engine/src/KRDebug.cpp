// KRDebug.cpp -- the reports of the stop macros and the key wait that follows some of them.
//
// Owns:    nothing but the printing; CHECK_GL_ERROR's report lives beside the OpenGL code (KRDebugGL.cpp).
#include "KRDebug.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <termios.h>
#include <unistd.h>

void KRWaitKey()
{
    if (!isatty(STDIN_FILENO))
        return;

    // One key, unbuffered and unechoed, as a console's getch would take it.
    termios saved;
    if (tcgetattr(STDIN_FILENO, &saved) != 0)
        return;
    termios raw = saved;
    raw.c_lflag &= ~(tcflag_t)(ICANON | ECHO);
    raw.c_cc[VMIN] = 1;
    raw.c_cc[VTIME] = 0;
    tcsetattr(STDIN_FILENO, TCSANOW, &raw);
    char c = 0;
    ssize_t got = read(STDIN_FILENO, &c, 1);
    (void)got;
    tcsetattr(STDIN_FILENO, TCSANOW, &saved);
}

// The message line that ends the reports of KR_ASSERT_MESG and HALT.
static void PrintMessage(const char* format, va_list args)
{
    std::printf("Mesg: ");
    std::vprintf(format, args);
    std::printf("\n");
    std::fflush(stdout);
}

void KRAssertMesgFail(const char* test, int line, const char* func, const char* file, const char* format, ...)
{
    std::printf("KR_ASSERT_MESG: %s\nLine: %d\nFunc: %s\nFile: %s\n", test, line, func, file);
    va_list args;
    va_start(args, format);
    PrintMessage(format, args);
    va_end(args);
    std::exit(1);
}

void KRAssertParmFail(const char* test, int line, const char* func, const char* file)
{
    std::printf("KR_ASSERT_PARM: %s\nLine: %d\nFunc: %s\nFile: %s\n", test, line, func, file);
    std::fflush(stdout);
    std::exit(1);
}

void KRHalt(int line, const char* func, const char* file, const char* format, ...)
{
    std::printf("HALT:\nLine: %d\nFunc: %s\nFile: %s\n", line, func, file);
    va_list args;
    va_start(args, format);
    PrintMessage(format, args);
    va_end(args);
    KRWaitKey();
    std::exit(1);
}
