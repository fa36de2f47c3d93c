#pragma once

#include <csignal>

namespace lv::analysis {

/// Holds back the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) while it exists, so that something can be
/// finished or removed first. At its end they do what they would have done.
///
/// It holds for the calling thread and for threads that this starts meanwhile. The signals go to any thread that does
/// not hold them, so start other threads under held signals, too. Signals that the program ignores, or holds already,
/// are left as they are.
class HeldSignals {
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    HeldSignals(HeldSignals&&) = delete;
    HeldSignals& operator=(HeldSignals&&) = delete;

    /// Whether one of them has arrived and waits.
    [[nodiscard]] bool arrived() const;

private:
    sigset_t held_{};
    sigset_t before_{};
};

}  // namespace lv::analysis
