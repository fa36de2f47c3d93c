#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>

// The documents of golden/<Record>/. `<name>.xml` is read into a fresh record of that class, `<name>.expected.xml` is
// the text that it then prints; beside that, `<name>.hlg.expected.xml` is what it prints with `writeHLGSystemGamma`
// set.

namespace lv::test {

namespace fs = std::filesystem;

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

/// The text of a file; one that cannot be read fails the test.
[[nodiscard]] inline std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace lv::test
