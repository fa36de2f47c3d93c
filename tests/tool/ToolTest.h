#pragma once

#include "system.h"

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
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
    std::string input = {};                                           // standard input
    std::filesystem::path outputTo = {};                              // appended to this, and not reported
    std::function<bool()> prepare = {};                               // called in the new process, before the tool
    std::filesystem::path inputFrom = {};                             // standard input, in place of `input`
    std::vector<std::pair<std::string, std::string>> variables = {};  // of the environment, with their values
};

// A run is not started when `prepare` returns false; on Windows it cannot be called.

inline Surroundings withInputFrom(const std::filesystem::path& path) {
    return {"", "", {}, path};
}

inline Surroundings withVariable(const std::string& name, const std::string& value) {
    return {"", "", {}, "", {{name, value}}};
}

/// The path of a sample document, from any folder.
inline std::string exampleData(const std::string& name) {
    return std::filesystem::absolute(std::filesystem::u8path(LVDATA_EXAMPLE_DATA "/" + name)).u8string();
}

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

    /// The same with any program.
    Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                       const Surroundings& around = {}) const;

    /// A file in the folder; names are UTF-8, paths as text, too.
    [[nodiscard]] std::filesystem::path path(const std::string& name) const {
        return folder_ / std::filesystem::u8path(name);
    }
    [[nodiscard]] std::string pathText(const std::string& name) const { return path(name).u8string(); }

    /// Its content, and the names of everything in the folder or in a folder there, sorted.
    void write(const std::string& name, const std::string& text) const;
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> names() const { return namesIn("."); }
    [[nodiscard]] std::vector<std::string> namesIn(const std::string& folder) const;

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
