#pragma once

#include "InputOptions.h"
#include "NameList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tool {

/// One document to work on.
struct Input {
    std::string file;  // as `readInput` takes it
};

/// Finds the inputs of a command one after the other. It holds the names of the folders that it is in, and not more, so
/// that the number of files does not matter.
///
/// PATHs come in their given order, then those of the lists. In a folder, files and folders are taken together in the
/// order of the bytes of their names. Symbolic links to folders are followed where they are PATHs themselves, and
/// ignored inside a folder; so are devices and pipes.
class InputWalk {
public:
    /// The options must outlive the walk.
    explicit InputWalk(const InputOptions& options) : options_(options) {}

    /// The next input; no value at the end. Throws `Failure` for a folder that cannot be read or holds no document, and
    /// for a list that cannot be read. The next call goes on after it.
    std::optional<Input> next();

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
    void enter(const std::string& folder);
    std::optional<Input> nextInFolder();
    std::optional<std::string> nextPath();
    std::optional<std::string> nextListedPath();

    const InputOptions& options_;
    std::size_t pathsTaken_ = 0;
    std::size_t listsTaken_ = 0;
    std::optional<NameList> list_;
    std::vector<Level> levels_;  // from the PATH down to the current folder
    std::string emptyFolder_;    // the PATH that is being walked, until something is found in it
};

}  // namespace tool
