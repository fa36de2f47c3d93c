#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tool {

// What each system has its own calls for. Names of files are bytes; on Windows they are UTF-8.

inline constexpr int standardInput = 0;
inline constexpr int standardOutput = 1;
inline constexpr int standardError = 2;

/// The words of the command line, in UTF-8 where the system has them in UTF-16.
[[nodiscard]] std::vector<std::string> wordsOf(int argumentCount, char** arguments);

/// To be called first. What cannot be written is then an error of writing, which is cleaned up after, and not the end
/// of the process; and text goes through the standard streams as it is.
void prepareProcess();

/// Ends as a command does that does not look after closed pipes, or returns if it is not to end so.
void endByClosedPipe();

[[nodiscard]] bool isTerminal(int descriptor);

/// What tells files apart whatever they are called.
using FileIdentity = std::pair<std::uint64_t, std::uint64_t>;

/// That of a regular file, also as `standardStream`; nothing where there is none.
[[nodiscard]] std::optional<FileIdentity> identityOf(const std::string& file);

/// The day and time there is in UTC, and where the process runs; nothing where it cannot be told.
[[nodiscard]] std::optional<std::tm> timeInUTC(std::time_t time);
[[nodiscard]] std::optional<std::tm> localTime(std::time_t time);

}  // namespace tool
