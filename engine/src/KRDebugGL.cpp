// KRDebugGL.cpp -- CHECK_GL_ERROR's report: every pending OpenGL error, then a stop if there was one.
#include "KRDebug.h"

#include <GL/glew.h>
#include <cstdio>
#include <cstdlib>

void KRCheckGLError(int line, const char* func, const char* file)
{
    // OpenGL keeps at most one flag per kind of error; the bound only guards against a driver that never
    // stops answering (a lost context).
    int errors = 0;
    for (GLenum code = glGetError(); code != GL_NO_ERROR && errors < 64; code = glGetError())
    {
        std::printf("CHECK_GL_ERROR:\nLine: %d\nFunc: %s\nFile: %s\n", line, func, file);
        std::printf("Code: 0x%.8x\n", (unsigned)code);
        std::printf("Mesg: \n");
        ++errors;
    }
    if (errors == 0)
        return;
    std::fflush(stdout);
    KRWaitKey();
    std::exit(1);
}
