#include "ToolTest.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr unsigned int secondsToRun = 60;

fs::path newFolder() {
    std::string name = fs::temp_directory_path() / "lvdata-test-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) {
        throw fs::filesystem_error("mkdtemp", name, std::error_code(errno, std::generic_category()));
    }
    return name;
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool redirect(int standard, const fs::path& path, int flags) {
    const int opened = ::open(path.c_str(), flags, 0600);  // NOLINT(cppcoreguidelines-pro-type-vararg)
    return opened >= 0 && ::dup2(opened, standard) >= 0 && ::close(opened) == 0;
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

std::function<bool()> limitMemory(std::size_t bytes) {
    return [limit = rlimit{bytes, bytes}] {
        return ::setrlimit(RLIMIT_AS, &limit) == 0;
    };
}

ToolTest::ToolTest() : streams_(newFolder()), folder_(streams_ / "work") {
    fs::create_directory(folder_);
}

ToolTest::~ToolTest() {
    std::error_code ignored;
    fs::remove_all(streams_, ignored);
}

Outcome ToolTest::run(const std::vector<std::string>& arguments, const Surroundings& around) const {
    return runProgram(LVDATA_TOOL, arguments, around);
}

Outcome ToolTest::runBash(const std::string& script) const {
    return runProgram("bash", {"-c", "set -o pipefail; PATH=" LVDATA_TOOL_FOLDER ":$PATH\n" + script}, {});
}

Outcome ToolTest::runProgram(const std::string& program, const std::vector<std::string>& arguments,
                             const Surroundings& around) const {
    const fs::path input = streams_ / "input";
    const fs::path error = streams_ / "error";
    const fs::path output = streams_ / "output";
    writeFile(input, around.input);
    fs::remove(output);

    const pid_t process = ::fork();
    if (process == 0) {
        const bool ready = ::chdir(folder_.c_str()) == 0 && redirect(STDIN_FILENO, input, O_RDONLY) &&
                           redirect(STDOUT_FILENO, around.outputTo.empty() ? output : around.outputTo,
                                    O_WRONLY | O_CREAT | O_APPEND) &&
                           redirect(STDERR_FILENO, error, O_WRONLY | O_CREAT | O_TRUNC) && around.prepare();
        ::alarm(secondsToRun);
        if (ready) {
            start(program, arguments);
        }
        ::_exit(notStarted);
    }
    return {waitFor(process), readFile(output), readFile(error)};
}

void ToolTest::write(const std::string& name, const std::string& text) const {
    writeFile(path(name), text);
}

std::string ToolTest::read(const std::string& name) const {
    return readFile(path(name));
}

std::vector<std::string> ToolTest::names() const {
    std::vector<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
        found.push_back(entry.path().filename());
    }
    std::sort(found.begin(), found.end());
    return found;
}
