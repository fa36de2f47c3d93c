#include "Folder.h"

#include <lvdata/analysis/files/HeldSignals.h>
#include <lvdata/analysis/files/files.h>

#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

namespace lv::test {
namespace {

using analysis::HeldSignals;

volatile std::sig_atomic_t interrupted = 0;

void countInterrupt(int /*signal*/) {
    interrupted = interrupted + 1;
}

/// Sends Ctrl-C to this console, where there is one, and waits until it arrived.
bool pressCtrlC(const HeldSignals& held) {
    if (::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) == 0) {
        return false;
    }
    for (int count = 0; count < 500 && !held.arrived(); ++count) {
        ::Sleep(10);
    }
    return true;
}

TEST(HeldSignalsOnWindows, NothingHasArrivedAtFirst) {
    EXPECT_FALSE(HeldSignals().arrived());
}

TEST(HeldSignalsOnWindows, CtrlCWaitsAndStopsWriting) {
    const Folder folder;
    static_cast<void>(std::signal(SIGINT, &countInterrupt));
    {
        const HeldSignals held;
        if (!pressCtrlC(held)) {
            GTEST_SKIP() << "no console to press Ctrl-C in";
        }
        EXPECT_TRUE(held.arrived());
        EXPECT_EQ(interrupted, 0);
        EXPECT_EQ(analysis::writeFile(folder.path("a"), "text").error, std::errc::interrupted);
        EXPECT_THAT(folder.names(), testing::IsEmpty());
    }
    EXPECT_EQ(interrupted, 1);
    static_cast<void>(std::signal(SIGINT, SIG_DFL));
}

}  // namespace
}  // namespace lv::test
