#pragma once

#include "ToolTest.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A document in a layout of its own, and as the tool prints it without declaration.
inline const std::string untidy = "<AssetInfo>\n<Asset1>one</Asset1></AssetInfo>";
inline const std::string tidy =
    "<AssetInfo Version=\"1\" MinorVersion=\"0\">\n    <Asset1>one</Asset1>\n</AssetInfo>\n";

/// A record that makes more output than `limitFileSize` lets a file hold.
inline std::string large() {
    return "<AssetInfo><Asset1>" + std::string(3'000'000, 'x') + "</Asset1></AssetInfo>";
}

/// To prepare a run: no file can grow beyond 1 MB.
bool limitFileSize();

inline constexpr const char* noUnprivilegedRun = "an unprivileged user cannot run the tool here";

unsigned int permissionsOf(const std::filesystem::path& path);

/// Runs the tool in a folder with "in.xml", which is untidy, "broken.xml", which is not XML, and "large.xml".
class OutputTest : public ToolTest {
protected:
    OutputTest();

    /// Formats "in.xml" into the named file.
    Outcome formatTo(const std::string& output, const Surroundings& around = {}) const;

    /// Runs the tool as a user who may change the folder and hardly anything else. No value when that cannot be done.
    [[nodiscard]] std::optional<Outcome> runUnprivileged(const std::vector<std::string>& arguments) const;

    /// Whether the folder holds the inputs and these, and nothing else.
    [[nodiscard]] bool holdsBesides(std::vector<std::string> others) const;
};
