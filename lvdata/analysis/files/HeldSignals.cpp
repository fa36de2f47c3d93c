#include <lvdata/analysis/files/HeldSignals.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

constexpr std::array<int, 3> endingSignals{SIGINT, SIGTERM, SIGHUP};

bool isIgnored(int signal) {
    struct sigaction action = {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): that is how it is declared
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

HeldSignals::HeldSignals() {
    ::pthread_sigmask(SIG_BLOCK, nullptr, &before_);
    ::sigemptyset(&held_);
    for (const int signal : endingSignals) {
        if (!isIgnored(signal) && ::sigismember(&before_, signal) == 0) {
            ::sigaddset(&held_, signal);
        }
    }
    ::pthread_sigmask(SIG_BLOCK, &held_, nullptr);
}

HeldSignals::~HeldSignals() {
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool HeldSignals::arrived() const {
    sigset_t waiting{};
    ::sigpending(&waiting);
    return std::any_of(endingSignals.begin(), endingSignals.end(), [&](int signal) {
        return ::sigismember(&held_, signal) == 1 && ::sigismember(&waiting, signal) == 1;
    });
}

}  // namespace lv::analysis
