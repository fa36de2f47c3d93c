#include "ToolTest.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

namespace {

namespace fs = std::filesystem;

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The first of two paths that is not empty.
const fs::path& either(const fs::path& one, const fs::path& other) {
    return one.empty() ? other : one;
}

}  // namespace

ToolTest::ToolTest() : streams_(makeTemporaryFolder()), folder_(streams_ / "work") {
    fs::create_directory(folder_);
}

ToolTest::~ToolTest() {
    std::error_code ignored;
    fs::remove_all(streams_, ignored);
}

Outcome ToolTest::run(const std::vector<std::string>& arguments, const Surroundings& around) const {
    return runProgram(LVDATA_TOOL, arguments, around);
}

Outcome ToolTest::runProgram(const std::string& program, const std::vector<std::string>& arguments,
                             const Surroundings& around) const {
    const fs::path input = streams_ / "input";
    const fs::path error = streams_ / "error";
    const fs::path output = streams_ / "output";
    writeFile(input, around.input);
    fs::remove(output);
    const int exitCode = exitCodeOf({program, arguments, folder_, either(around.inputFrom, input),
                                     either(around.outputTo, output), error, around.variables, around.prepare});
    return {exitCode, readFile(output), readFile(error)};
}

void ToolTest::write(const std::string& name, const std::string& text) const {
    writeFile(path(name), text);
}

std::string ToolTest::read(const std::string& name) const {
    return readFile(path(name));
}

std::vector<std::string> ToolTest::namesIn(const std::string& folder) const {
    std::vector<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(path(folder))) {
        found.push_back(entry.path().filename().u8string());
    }
    std::sort(found.begin(), found.end());
    return found;
}
