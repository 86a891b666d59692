// The stop macros: their exact reports on standard output and exit status 1, and no key wait without a terminal.
#include "KRDebug.h"

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

TEST(StopMacros, PassingTestsDoNothing)
{
    KR_ASSERT_MESG(1 + 1 == 2, "arithmetic");
    KR_ASSERT_PARM(true);
    SUCCEED();
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
