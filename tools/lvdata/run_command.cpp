#include "run_command.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"
#include "messages.h"

#include <csignal>
#include <exception>
#include <new>

namespace tool {
namespace {

int numberOf(ExitStatus status) {
    return static_cast<int>(status);
}

int report(const Failure& failure) {
    printMessage(failure.what());
    return numberOf(ExitStatus::failed);
}

/// Ends the process as the signal does for commands that do not handle closed pipes.
int endByClosedPipe() {
    static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
    static_cast<void>(std::raise(SIGPIPE));
    return numberOf(ExitStatus::failed);  // where the signal is blocked
}

}  // namespace

int runCommand(const std::function<ExitStatus()>& command) {
    try {
        // Then write() fails with an error, and temporary files are removed: a file that grows too large, a closed
        // pipe.
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
        return numberOf(command());
    } catch (const ClosedPipe&) {
        return endByClosedPipe();
    } catch (const Failure& failure) {
        return report(failure);
    } catch (const std::bad_alloc&) {
        return report({program, "out of memory"});
    } catch (const std::exception& error) {
        return report({program, error.what()});
    }
}

}  // namespace tool
