#pragma once

#include <lvdata/analysis/files/HeldSignals.h>
#include <lvdata/analysis/files/windows/Handle.h>

#include <filesystem>
#include <string_view>

namespace lv::analysis {

/// Writes all of the text; throws `std::system_error` when not all of it can be written.
void writeToHandle(HANDLE file, std::string_view text);

/// A new file with a name of its own, ".lvdata-XXXXXX", in a folder. It is removed at the end unless it was stored
/// under another name. Functions throw `std::system_error`; writing stops with "Interrupted system call" after Ctrl-C.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::filesystem::path& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;

    void write(std::string_view text);

    /// Stores what was written, and gives the file this path in the same folder.
    void storeAs(const std::filesystem::path& path);

    /// The same in the place of a file, whose access list and attributes it takes over.
    void replace(const std::filesystem::path& old);

private:
    void finish();

    HeldSignals held_;  // first, so that Ctrl-C waits until the file is removed
    std::filesystem::path path_;
    Handle file_;
};

}  // namespace lv::analysis
