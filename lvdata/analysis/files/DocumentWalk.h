#pragma once

#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace lv::analysis {

/// Finds documents in folders one after the other: the files whose name ends with ".xml". It holds the names of the
/// folders that it is in, and not more, so that the number of files does not matter.
///
/// In a folder, files and folders are taken together in the order of the bytes of their names. Symbolic links to
/// folders are followed where they are given, and ignored inside a folder; so are devices and pipes.
class DocumentWalk {
public:
    /// A document, or something that could not be walked.
    struct Found {
        std::string path{};       ///< Its path: as it was given, or below a folder that was.
        std::string reason{};     ///< Why it could not be walked; empty: it is a document.
        std::error_code error{};  ///< The same as the system has it.
    };

    /// Goes to a file or a folder. What is left of the one before is dropped.
    void start(const std::string& path);

    /// The next document. After one that could not be walked the next call goes on. No value at the end of what was
    /// given. A file that was given is a document whatever it is called, also when there is none of that name: reading
    /// it tells why.
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
