#include <lvdata/analysis/files/HeldSignals.h>

#include <atomic>
#include <csignal>

#include <windows.h>

namespace lv::analysis {
namespace {

// The system calls a plain function, on a thread of its own. Both count for the whole process.
std::atomic<int> holders = 0;
std::atomic<bool> hasArrived = false;

BOOL WINAPI hold(DWORD event) {
    const bool isHeld = holders > 0 && (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT);
    if (isHeld) {
        hasArrived = true;
    }
    return isHeld ? TRUE : FALSE;
}

}  // namespace

struct HeldSignals::State {};

HeldSignals::HeldSignals() {
    ::SetConsoleCtrlHandler(&hold, TRUE);
    ++holders;
}

HeldSignals::~HeldSignals() {
    const bool isLast = --holders == 0;
    ::SetConsoleCtrlHandler(&hold, FALSE);
    if (isLast && hasArrived.exchange(false)) {
        static_cast<void>(std::raise(SIGINT));
    }
}

bool HeldSignals::arrived() const {  // NOLINT(readability-convert-member-functions-to-static): as on other systems
    return hasArrived;
}

}  // namespace lv::analysis
