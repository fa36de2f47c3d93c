#include "run_command.h"

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"
#include "messages.h"
#include "system.h"

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

}  // namespace

int runCommand(const std::function<ExitStatus()>& command) {
    try {
        prepareProcess();
        return numberOf(command());
    } catch (const ClosedPipe&) {
        endByClosedPipe();
        return numberOf(ExitStatus::failed);  // where the signal is blocked
    } catch (const Failure& failure) {
        return report(failure);
    } catch (const std::bad_alloc&) {
        return report({program, "out of memory"});
    } catch (const std::exception& error) {
        return report({program, error.what()});
    }
}

}  // namespace tool
