#include <lvdata/analysis/files/HeldSignals.h>

#include <algorithm>
#include <array>
#include <csignal>

namespace lv::analysis {
namespace {

constexpr std::array<int, 3> endingSignals{SIGINT, SIGTERM, SIGHUP};

bool isIgnored(int signal) {
    struct sigaction action = {};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): that is how it is declared
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

struct HeldSignals::State {
    sigset_t held{};
    sigset_t before{};
};

HeldSignals::HeldSignals() : state_(std::make_unique<State>()) {
    ::pthread_sigmask(SIG_BLOCK, nullptr, &state_->before);
    ::sigemptyset(&state_->held);
    for (const int signal : endingSignals) {
        if (!isIgnored(signal) && ::sigismember(&state_->before, signal) == 0) {
            ::sigaddset(&state_->held, signal);
        }
    }
    ::pthread_sigmask(SIG_BLOCK, &state_->held, nullptr);
}

HeldSignals::~HeldSignals() {
    ::pthread_sigmask(SIG_SETMASK, &state_->before, nullptr);
}

bool HeldSignals::arrived() const {
    sigset_t waiting{};
    ::sigpending(&waiting);
    return std::any_of(endingSignals.begin(), endingSignals.end(), [&](int signal) {
        return ::sigismember(&state_->held, signal) == 1 && ::sigismember(&waiting, signal) == 1;
    });
}

}  // namespace lv::analysis
