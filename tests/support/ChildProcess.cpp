// ChildProcess.cpp -- fork, a pipe for standard output, and the exit status.
#include "ChildProcess.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

ChildResult RunInChild(const std::function<void()>& body)
{
    ChildResult result{-1, std::string()};
    int fds[2];
    if (pipe(fds) != 0)
        return result;
    std::fflush(stdout);
    std::fflush(stderr);
    pid_t pid = fork();
    if (pid == 0)
    {
        close(fds[0]);
        dup2(fds[1], STDOUT_FILENO);
        close(fds[1]);
        int devNull = open("/dev/null", O_RDONLY);
        if (devNull >= 0)
            dup2(devNull, STDIN_FILENO);
        body();
        std::exit(0);
    }
    close(fds[1]);
    char buffer[4096];
    ssize_t got;
    while ((got = read(fds[0], buffer, sizeof(buffer))) > 0)
        result.out.append(buffer, (size_t)got);
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}
