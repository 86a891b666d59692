// KRDebug.h -- the four stop macros shared by the engine and the game. There are no error returns: a failed
// test prints its report to standard output and ends the process with status 1.
//
//   KR_ASSERT_MESG(test, format, ...)  report, "Mesg: " and the formatted message, exit(1)
//   KR_ASSERT_PARM(test)               report, exit(1)
//   HALT(format, ...)                  report, "Mesg: " and the message, a key wait, exit(1)
//   CHECK_GL_ERROR()                   one report per pending OpenGL error; if any came, a key wait and exit(1)
//
// The key waits happen only when standard input is a terminal, so that a test or a CI run never hangs.
#pragma once

#define KR_ASSERT_MESG(x, ...)                                                                                       \
    do                                                                                                               \
    {                                                                                                                \
        if (!(x))                                                                                                    \
            KRAssertMesgFail(#x, __LINE__, __FUNCTION__, __FILE__, __VA_ARGS__);                                     \
    } while (0)

#define KR_ASSERT_PARM(x)                                                                                            \
    do                                                                                                               \
    {                                                                                                                \
        if (!(x))                                                                                                    \
            KRAssertParmFail(#x, __LINE__, __FUNCTION__, __FILE__);                                                  \
    } while (0)

#define HALT(...) KRHalt(__LINE__, __FUNCTION__, __FILE__, __VA_ARGS__)

#define CHECK_GL_ERROR() KRCheckGLError(__LINE__, __FUNCTION__, __FILE__)

[[noreturn]] void KRAssertMesgFail(const char* test, int line, const char* func, const char* file, const char* format,
                                   ...) __attribute__((format(printf, 5, 6)));
[[noreturn]] void KRAssertParmFail(const char* test, int line, const char* func, const char* file);
[[noreturn]] void KRHalt(int line, const char* func, const char* file, const char* format, ...)
    __attribute__((format(printf, 4, 5)));
void KRCheckGLError(int line, const char* func, const char* file);

// Waits for one key press on the terminal; returns at once when standard input is not a terminal.
void KRWaitKey();
