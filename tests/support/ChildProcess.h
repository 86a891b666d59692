// ChildProcess.h -- runs a piece of a test in a child process and keeps what it wrote to standard output and its
// exit status: for the stop macros and messages that end the process.
#pragma once

#include <functional>
#include <string>

struct ChildResult
{
    int exitCode;    // the status given to exit(), or -1 when the child died of a signal
    std::string out; // everything the child wrote to standard output, byte for byte
};

// Forks, runs body in the child (with standard input from /dev/null, so no key wait can hang), and ends the child
// with exit(0) if body returns. Call it before the test brings up a window: the child must start from scratch.
ChildResult RunInChild(const std::function<void()>& body);
