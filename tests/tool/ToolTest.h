#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// What a run of the tool left.
struct Outcome {
    int exitCode;
    std::string output;
    std::string error;
};

/// What a run of the tool finds around it.
struct Surroundings {
    std::string input = {};               // standard input
    std::filesystem::path outputTo = {};  // standard output is appended to this, and not reported
    std::function<bool()> prepare = [] {
        return true;
    };  // in the new process, before the tool; false: cannot be
};

/// To prepare a run: the tool has so many bytes of memory. Sanitizers reserve more than a limit could leave.
std::function<bool()> limitMemory(std::size_t bytes);

/// The exit code of a run that could not be prepared or started.
inline constexpr int notStarted = 127;

/// Runs the tool in a folder of the test's own, which goes with the test.
class ToolTest : public testing::Test {
public:
    ToolTest();
    ~ToolTest() override;
    ToolTest(const ToolTest&) = delete;
    ToolTest& operator=(const ToolTest&) = delete;
    ToolTest(ToolTest&&) = delete;
    ToolTest& operator=(ToolTest&&) = delete;

protected:
    /// Runs the tool with the folder as its current one.
    Outcome run(const std::vector<std::string>& arguments, const Surroundings& around = {}) const;

    /// The same with any program, which is searched for in PATH.
    Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const Surroundings& around = {}) const;

    /// The same with a script for bash, which finds the tool by its name.
    [[nodiscard]] Outcome runBash(const std::string& script) const;

    /// A file in the folder, its content, and the names of everything there, sorted.
    [[nodiscard]] std::filesystem::path path(const std::string& name) const { return folder_ / name; }
    void write(const std::string& name, const std::string& text) const;
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> names() const;

private:
    std::filesystem::path streams_;  // standard input and output, out of the way of `names`
    std::filesystem::path folder_;
};

/// The outcomes of a run, to be compared as a whole.
inline bool operator==(const Outcome& left, const Outcome& right) {
    return left.exitCode == right.exitCode && left.output == right.output && left.error == right.error;
}

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << "exit code " << outcome.exitCode << "\noutput: " << outcome.output << "\nerror: " << outcome.error;
}

inline Outcome printed(const std::string& text) {
    return {0, text, ""};
}

inline Outcome done() {
    return printed("");
}

inline Outcome failed(const std::string& message) {
    return {2, "", message + '\n'};
}
