// The stop macros: their exact reports on standard output and exit status 1, and no key wait without a terminal.
#include "KRDebug.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// The reports go to standard output; the death test matches what the child wrote to standard error.
void ReportOnStderr()
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

void FailMesg()
{
    int lives = 0;
    KR_ASSERT_MESG(lives > 0, "no lives left: %d", lives);
}

void FailParm(unsigned type)
{
    KR_ASSERT_PARM(type < 100u);
}

void Halt()
{
    HALT("fail to initialize GLEW!!");
}

} // namespace

TEST(StopMacros, AssertMesgPrintsTestLineFunctionFileAndMessageThenExitsWithOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            ReportOnStderr();
            FailMesg();
        },
        ::testing::ExitedWithCode(1),
        "KR_ASSERT_MESG: lives > 0\nLine: [0-9]+\nFunc: FailMesg\nFile: .*test_stop_macros.cpp\nMesg: no lives "
        "left: 0\n");
}

TEST(StopMacros, AssertParmPrintsTheFailedTestAndExitsWithOne)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            ReportOnStderr();
            FailParm(120);
        },
        ::testing::ExitedWithCode(1), "KR_ASSERT_PARM: type < 100u\nLine: [0-9]+\nFunc: FailParm\nFile: .*\n");
}

TEST(StopMacros, PassingTestsPrintNothingGoOnAndNeverBuildTheirMessage)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // In a child whose standard output is its standard error, so that the death test sees all it prints: after two
    // passing tests the only words are the child's own, and it ends by itself with status 0.
    EXPECT_EXIT(
        {
            ReportOnStderr();
            int tests = 0;
            int messagesBuilt = 0;
            KR_ASSERT_MESG(++tests == 1, "built %d", ++messagesBuilt);
            KR_ASSERT_PARM(++tests == 2);
            std::printf("went on: tests %d, messages built %d\n", tests, messagesBuilt);
            std::fflush(stdout);
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "^went on: tests 2, messages built 0\n$");
}

TEST(StopMacros, HaltWithoutATerminalReportsAndExitsWithoutWaiting)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            ReportOnStderr();
            Halt();
        },
        ::testing::ExitedWithCode(1), "HALT:\nLine: [0-9]+\nFunc: Halt\nFile: .*\nMesg: fail to initialize GLEW!!\n");
}

TEST(StopMacros, KeyWaitReturnsAtOnceWhenInputIsNoTerminal)
{
    if (isatty(STDIN_FILENO))
        GTEST_SKIP() << "standard input is a terminal here";
    KRWaitKey();
    SUCCEED();
}
