#pragma once

#include "system.h"

#include <mutex>
#include <set>
#include <string>

namespace tool {

/// The files that a command reads, under any name, so that it does not overwrite them. Any number of threads may use
/// one.
class InputFiles {
public:
    /// \param file  as `readInput` takes it
    void add(const std::string& file);

    /// Throws `Failure` when the file of that name is one of them.
    void refuseToOverwrite(const std::string& file) const;

private:
    mutable std::mutex mutex_;
    std::set<FileIdentity> files_;
};

}  // namespace tool
