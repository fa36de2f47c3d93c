#pragma once

#include <memory>

namespace lv::analysis {

/// Holds back the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP; on Windows Ctrl-C and Ctrl-Break) while
/// it exists, so that something can be finished or removed first. When it is destroyed, the signals take effect.
///
/// It applies to the calling thread and to threads that this thread starts meanwhile. The system delivers the signals
/// to any thread that does not hold them, so start other threads while the signals are held, too. Signals that the
/// program already ignores or holds are not changed.
///
/// On Windows it applies to all threads, and at the end Ctrl-C does what `std::raise(SIGINT)` does.
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
