#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// What each system has its own calls for.

/// A program to run, with what it finds around it.
struct Process {
    std::string program;  // in UTF-8, as the arguments; POSIX searches for it in PATH
    std::vector<std::string> arguments;
    std::filesystem::path folder;                                // its current folder
    std::filesystem::path input;                                 // standard input
    std::filesystem::path output;                                // standard output is appended to this
    std::filesystem::path error;                                 // standard error, made anew
    std::vector<std::pair<std::string, std::string>> variables;  // of the environment, with their values
    std::function<bool()> prepare;                               // see `Surroundings`
};

/// The exit code of a run that could not be prepared or started.
inline constexpr int notStarted = 127;

/// After which a program is ended: far more than any needs, even under the sanitizers on a busy machine.
inline constexpr unsigned int secondsToRun = 600;

/// Runs a program to its end and returns its exit code; 128 + N where signal N ended it.
[[nodiscard]] int exitCodeOf(const Process& process);

/// Makes a folder for temporary files.
[[nodiscard]] std::filesystem::path makeTemporaryFolder();

/// Makes a file and returns its descriptor.
[[nodiscard]] int makeFile(const std::filesystem::path& path);
