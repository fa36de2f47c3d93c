#include "PosixTest.h"

#include <csignal>
#include <functional>

#include <unistd.h>

namespace {

using Signals = PosixTest;

/// To prepare a run: the tool gets the signal after some milliseconds.
std::function<bool()> signalAfter(int signal, int milliseconds) {
    return [=] {
        const pid_t tool = ::getpid();
        if (::fork() == 0) {
            ::usleep(static_cast<useconds_t>(milliseconds) * 1000);
            if (::getppid() == tool) {
                ::kill(tool, signal);
            }
            ::_exit(0);
        }
        return true;
    };
}

TEST_F(Signals, AtAnyTimeLeaveTheOldOrTheNewFile) {
    write("out.xml", "old");
    ASSERT_EQ(run({"format", "large.xml", "-o", "whole.xml"}), done());
    for (int milliseconds = 0; milliseconds < 60; milliseconds += 2) {
        const int signal = milliseconds % 4 == 0 ? SIGINT : SIGTERM;
        const int code =
            run({"format", "large.xml", "-o", "out.xml"}, {"", "", signalAfter(signal, milliseconds)}).exitCode;
        EXPECT_TRUE(code == 0 || code == 128 + signal) << code;
        EXPECT_TRUE((code != 0 && read("out.xml") == "old") || read("out.xml") == read("whole.xml"));
        EXPECT_TRUE(holdsBesides({"out.xml", "whole.xml"}));
        write("out.xml", "old");
    }
}

}  // namespace
