#include <lvdata/analysis/files/HeldSignals.h>

#include <tests/analysis/files/in_child.h>

#include <csignal>

#include <gtest/gtest.h>

namespace {

using lv::analysis::HeldSignals;
using lv::test::inChild;

/// 1 when the signal is held and waits; the process ends by it afterwards.
int raiseWhileHeld(int signal) {
    const HeldSignals held;
    ::raise(signal);
    return held.arrived() ? 1 : 2;
}

TEST(HeldSignals, TakeEffectAtTheEnd) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const int status = inChild([signal] {
            raiseWhileHeld(signal);
            return 3;
        });
        ASSERT_TRUE(WIFSIGNALED(status)) << signal;
        EXPECT_EQ(WTERMSIG(status), signal);
    }
}

TEST(HeldSignals, AreSeenWhenTheyArrive) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const int status = inChild([signal] {
            const HeldSignals held;
            const bool before = held.arrived();
            ::raise(signal);
            ::_exit(!before && held.arrived() ? 1 : 2);
            return 0;
        });
        ASSERT_TRUE(WIFEXITED(status)) << signal;
        EXPECT_EQ(WEXITSTATUS(status), 1);
    }
}

TEST(HeldSignals, DoNotChangeIgnoredSignals) {
    const int status = inChild([] {
        static_cast<void>(std::signal(SIGHUP, SIG_IGN));  // as nohup does
        return raiseWhileHeld(SIGHUP);
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2);
}

TEST(HeldSignals, DoNotChangeSignalsThatTheProgramBlocks) {
    const int status = inChild([] {
        const HeldSignals outer;
        const int result = raiseWhileHeld(SIGINT);
        ::_exit(outer.arrived() ? result : 3);
        return 0;
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2);
}

TEST(HeldSignals, LetOtherSignalsThrough) {
    const int status = inChild([] { return raiseWhileHeld(SIGUSR1); });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGUSR1);
}

}  // namespace
