#include "files.h"
#include "system.h"

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

namespace tool {

std::vector<std::string> wordsOf(int argumentCount, char** arguments) {
    return {arguments, arguments + argumentCount};  // NOLINT(*-pointer-arithmetic): that is how they come
}

void prepareProcess() {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // a file that grows too large
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
}

void endByClosedPipe() {
    static_cast<void>(std::signal(SIGPIPE, SIG_DFL));
    static_cast<void>(std::raise(SIGPIPE));
}

bool isTerminal(int descriptor) {
    return ::isatty(descriptor) == 1;
}

std::optional<FileIdentity> identityOf(const std::string& file) {
    struct stat status {};
    const int result = file == standardStream ? ::fstat(standardInput, &status) : ::stat(file.c_str(), &status);
    if (result != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino};
}

std::optional<std::tm> timeInUTC(std::time_t time) {
    std::tm day{};
    return ::gmtime_r(&time, &day) != nullptr ? std::optional(day) : std::nullopt;
}

std::optional<std::tm> localTime(std::time_t time) {
    std::tm day{};
    return ::localtime_r(&time, &day) != nullptr ? std::optional(day) : std::nullopt;
}

}  // namespace tool
