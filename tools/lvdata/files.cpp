#include "files.h"

#include "Failure.h"
#include "limit_options.h"

#include <lvdata/analysis/files.h>

#include <csignal>

#include <unistd.h>

namespace tool {
namespace {

/// Ends the command as the signal does by itself, without a message; also where whoever started it ignores the signal.
void endByClosedPipe() {
    static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
    static_cast<void>(std::raise(SIGPIPE));
}

}  // namespace

std::string inputName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

std::string readInput(const std::string& file, std::size_t limit) {
    auto content = file == standardStream ? lv::analysis::readDescriptor(STDIN_FILENO, limit + 1)
                                          : lv::analysis::readFile(file, limit + 1);
    if (!content) {
        throw Failure(inputName(file), content.error.message());
    }
    if (content.text.size() > limit) {
        throw Failure(inputName(file), excessReason({lv::Excess::What::bytes, limit, limit, 0}));
    }
    return std::move(content.text);
}

void writeOutput(const std::string& file, std::string_view text) {
    const bool toStandardOutput = file == standardStream;
    const auto result =
        toStandardOutput ? lv::analysis::writeDescriptor(STDOUT_FILENO, text) : lv::analysis::writeFile(file, text);
    if (result.error == std::errc::broken_pipe) {
        endByClosedPipe();
    }
    if (!result) {
        throw Failure(toStandardOutput ? "<stdout>" : file, result.reason);
    }
}

}  // namespace tool
