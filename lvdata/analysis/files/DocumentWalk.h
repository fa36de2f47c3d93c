#pragma once

#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace lv::analysis {

/// The path of what has that name in the folder, with "/" also on Windows, so that the same is printed everywhere.
[[nodiscard]] std::string pathIn(const std::string& folder, const std::string& name);

/// Finds documents in folders one after the other: the files whose names end with ".xml". It holds only the names in
/// the folders that are open, so memory does not depend on the total number of files.
///
/// In a folder, files and folders are sorted together by the bytes of their names. Symbolic links to folders are
/// followed when they are given as paths. Inside a folder, such links, devices and pipes are ignored.
class DocumentWalk {
public:
    /// A document, or a folder that could not be read.
    struct Found {
        std::string path{};       ///< Its path: as given, or below a given folder.
        std::string reason{};     ///< Why it could not be read; empty: it is a document.
        std::error_code error{};  ///< The same as an error of the system.
    };

    /// Starts at a file or a folder. The rest of the previous one is dropped.
    void start(const std::string& path);

    /// The next document. After a folder that could not be read, the next call continues. No value at the end. A file
    /// that was given counts as a document whatever its name, even if it does not exist: reading it then reports the
    /// error.
    std::optional<Found> next();

private:
    struct Entry {
        std::string name;
        bool isFolder;
    };

    /// A folder that is being walked.
    struct Level {
        std::string folder;
        std::vector<Entry> entries;  // in descending order: the last one is next
    };

    static Level readFolder(const std::string& folder);
    std::optional<Found> enter(const std::string& folder);
    std::optional<Found> nextInFolder();

    std::optional<Found> given_;  // a file that was given, or why it could not be walked
    std::vector<Level> levels_;   // from the folder that was given down to the current one
    std::string emptyFolder_;     // the folder that was given, until something is found in it
};

}  // namespace lv::analysis
