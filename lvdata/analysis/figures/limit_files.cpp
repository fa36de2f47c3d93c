#include <lvdata/analysis/figures/limit_files.h>

#include <lvdata/analysis/files/files.h>

#include <cstddef>
#include <filesystem>
#include <system_error>

namespace lv::analysis {
namespace {

constexpr std::size_t mostBytes = 1'000'000;

/// Why the text of a limit set cannot be read; empty when it can.
std::string complaintAbout(const FileContent& content) {
    if (content.error == std::errc::no_such_file_or_directory) {
        return "no file and no limit set has this name; known limit sets: " + namesOfLimitSets();
    }
    if (!content) {
        return content.error.message();
    }
    const bool isTooLong = content.text.size() > mostBytes;
    return isTooLong ? "more than " + std::to_string(mostBytes) + " bytes, too large for a limit set" : "";
}

}  // namespace

std::string namesOfLimitSets() {
    std::string names;
    for (const LimitSet& set : knownLimitSets()) {
        names += (names.empty() ? "" : ", ") + set.name;
    }
    return names;
}

LimitSetResult findLimitSet(const std::string& nameOrFile) {
    for (const LimitSet& set : knownLimitSets()) {
        if (set.name == nameOrFile) {
            return {set, 0, ""};
        }
    }
    const FileContent content = readFile(std::filesystem::u8path(nameOrFile), mostBytes + 1);
    const std::string complaint = complaintAbout(content);
    return complaint.empty() ? readLimitSet(content.text) : LimitSetResult{std::nullopt, 0, complaint};
}

}  // namespace lv::analysis
