#pragma once

#include <tests/tool/OutputTest.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// To prepare a run: the tool has so many bytes of memory. Sanitizers reserve more than a limit could leave.
std::function<bool()> limitMemory(std::size_t bytes);

/// To prepare a run: no file can grow beyond 1 MB.
bool limitFileSize();

/// To prepare a run: as a user who owns nothing, where the tests run as root.
bool dropPrivileges();

inline constexpr const char* noUnprivilegedRun = "an unprivileged user cannot run the tool here";

unsigned int permissionsOf(const std::filesystem::path& path);

/// What only POSIX has: bash, users and their rights.
class PosixTest : public OutputTest {
protected:
    /// Runs a script by bash, which finds the tool by its name.
    [[nodiscard]] Outcome runBash(const std::string& script) const;

    /// Runs a program as a user who may change the folder and hardly anything else. No value when that cannot be done.
    [[nodiscard]] std::optional<Outcome> runUnprivileged(const std::vector<std::string>& arguments,
                                                         const std::string& program = LVDATA_TOOL) const;
};
