#pragma once

#include <tests/support/files.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

// The documents of golden/<Record>/. `<name>.xml` is read into a fresh record of that class, `<name>.expected.xml` is
// the text that it then prints; beside that, `<name>.hlg.expected.xml` is what it prints with `writeHLGSystemGamma`
// set.

namespace lv::test {

inline constexpr const char* documentEnd = ".xml";
inline constexpr const char* expectedEnd = ".expected.xml";

/// All files of a record, in the order of their names; the folders of all records when none is named.
[[nodiscard]] inline std::vector<fs::path> goldenFilesOf(const std::string& record) {
    std::error_code ignored;  // a missing folder has no entries; a test of its own notices that
    std::vector<fs::path> entries;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(LVDATA_GOLDEN_DIR) / record, ignored)) {
        entries.push_back(entry.path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

/// The texts of a record's documents, and those that are expected of them, in the order of their names.
[[nodiscard]] inline std::vector<std::string> goldenTextsOf(const std::string& record) {
    std::vector<std::string> texts;
    for (const fs::path& path : goldenFilesOf(record)) {
        texts.push_back(contentOf(path));
    }
    return texts;
}

}  // namespace lv::test
