#pragma once

#include <memory>

namespace lv::analysis {

/// Holds back the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP; on Windows Ctrl-C and Ctrl-Break) while
/// it exists, so that something can be finished or removed first. At its end they do what they would have done.
///
/// It holds for the calling thread and for threads that this starts meanwhile. The signals go to any thread that does
/// not hold them, so start other threads under held signals, too. Signals that the program ignores, or holds already,
/// are left as they are.
///
/// On Windows it holds for all threads, and at the end Ctrl-C does what `std::raise(SIGINT)` does.
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
    struct State;  // each system has its own
    std::unique_ptr<State> state_;
};

}  // namespace lv::analysis
