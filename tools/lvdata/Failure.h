#pragma once

#include <stdexcept>
#include <string>

namespace tool {

/// Why a file could not be read or written; `what()` is the whole message for the user.
class Failure : public std::runtime_error {
public:
    /// \param file  as the user named it
    /// \param line  of that file, counted from 1; 0 when no line applies
    Failure(const std::string& file, const std::string& reason, int line = 0)
        : std::runtime_error(file + ": error: " + (line > 0 ? "line " + std::to_string(line) + ": " : "") + reason) {}
};

}  // namespace tool
