#include "system.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iterator>
#include <system_error>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

bool redirect(int standard, const fs::path& path, int flags) {
    const int opened = ::open(path.c_str(), flags, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    return opened >= 0 && ::dup2(opened, standard) >= 0 && ::close(opened) == 0;
}

bool set(const std::vector<std::pair<std::string, std::string>>& variables) {
    return std::all_of(variables.begin(), variables.end(), [](const auto& variable) {
        return ::setenv(variable.first.c_str(), variable.second.c_str(), 1) == 0;  // NOLINT(concurrency-mt-unsafe)
    });
}

bool prepare(const Process& process) {
    return ::chdir(process.folder.c_str()) == 0 && set(process.variables) &&
           redirect(STDIN_FILENO, process.input, O_RDONLY) &&
           redirect(STDOUT_FILENO, process.output, O_WRONLY | O_CREAT | O_APPEND) &&
           redirect(STDERR_FILENO, process.error, O_WRONLY | O_CREAT | O_TRUNC) &&
           (!process.prepare || process.prepare());
}

void start(std::string program, std::vector<std::string> arguments) {
    std::vector<char*> pointers{program.data()};
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(pointers),
                   [](std::string& argument) { return argument.data(); });
    pointers.push_back(nullptr);
    ::execvp(program.c_str(), pointers.data());
}

int waitFor(pid_t process) {
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

int exitCodeOf(const Process& process) {
    const pid_t started = ::fork();
    if (started == 0) {
        const bool ready = prepare(process);
        ::alarm(secondsToRun);
        if (ready) {
            start(process.program, process.arguments);
        }
        ::_exit(notStarted);
    }
    return waitFor(started);
}

fs::path makeTemporaryFolder() {
    std::string name = fs::temp_directory_path() / "lvdata-test-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) {
        throw fs::filesystem_error("mkdtemp", name, std::error_code(errno, std::generic_category()));
    }
    return name;
}

int makeFile(const fs::path& path) {
    return ::open(path.c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}
