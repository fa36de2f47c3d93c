#pragma once

#include "InputOptions.h"
#include "NameList.h"

#include <lvdata/analysis/files/DocumentWalk.h>

#include <cstddef>
#include <optional>
#include <string>

namespace tool {

/// One document to work on.
struct Input {
    std::string file;  // as `readInput` takes it
};

/// Finds the inputs of a command one after the other, so that memory does not depend on the number of files.
///
/// PATHs come in their given order, then those of the lists; folders are walked as `DocumentWalk` does.
class InputWalk {
public:
    /// The options must outlive the walk.
    explicit InputWalk(const InputOptions& options) : options_(options) {}

    /// The next input; no value at the end. Throws `Failure` for a folder that cannot be read or holds no document, and
    /// for a list that cannot be read. The next call continues after it.
    std::optional<Input> next();

private:
    std::optional<std::string> nextPath();
    std::optional<std::string> nextListedPath();

    const InputOptions& options_;
    std::size_t pathsTaken_ = 0;
    std::size_t listsTaken_ = 0;
    std::optional<NameList> list_;
    lv::analysis::DocumentWalk walk_;
};

}  // namespace tool
