#include "PosixTest.h"

#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

std::function<bool()> limitMemory(std::size_t bytes) {
    return [limit = rlimit{bytes, bytes}] {
        return ::setrlimit(RLIMIT_AS, &limit) == 0;
    };
}

bool limitFileSize() {
    const rlimit limit{1'000'000, 1'000'000};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

bool dropPrivileges() {
    constexpr uid_t nobody = 65534;
    return ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
}

unsigned int permissionsOf(const fs::path& path) {
    return static_cast<unsigned int>(fs::status(path).permissions());
}

Outcome PosixTest::runBash(const std::string& script) const {
    return runProgram("bash", {"-c", "set -o pipefail; PATH=" LVDATA_TOOL_FOLDER ":$PATH\n" + script});
}

std::optional<Outcome> PosixTest::runUnprivileged(const std::vector<std::string>& arguments,
                                                  const std::string& program) const {
    fs::permissions(path("."), fs::perms{0777});
    fs::permissions(path(".."), fs::perms{0755});
    const auto prepare = [&program] {
        return dropPrivileges() && ::access(program.c_str(), X_OK) == 0;
    };
    const Outcome outcome = runProgram(program, arguments, {"", "", prepare});
    return outcome.exitCode == notStarted ? std::nullopt : std::optional(outcome);
}
