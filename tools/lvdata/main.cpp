#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"
#include "messages.h"

#include <csignal>
#include <exception>
#include <new>

namespace {

int numberOf(tool::ExitStatus status) {
    return static_cast<int>(status);
}

int report(const tool::Failure& failure) {
    tool::printMessage(failure.what());
    return numberOf(tool::ExitStatus::failed);
}

/// Ends as a command does that does not look after closed pipes.
int endByClosedPipe() {
    static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
    static_cast<void>(std::raise(SIGPIPE));
    return numberOf(tool::ExitStatus::failed);  // where the signal is blocked
}

}  // namespace

int main(int argumentCount, char** arguments) {
    try {
        // These are then errors of write(), which are cleaned up after: a file that grows too large, a closed pipe.
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
        return numberOf(tool::CommandLine().run(argumentCount, arguments));
    } catch (const tool::ClosedPipe&) {
        return endByClosedPipe();
    } catch (const tool::Failure& failure) {
        return report(failure);
    } catch (const std::bad_alloc&) {
        return report({tool::program, "out of memory"});
    } catch (const std::exception& error) {
        return report({tool::program, error.what()});
    }
}
