#pragma once

#include <lvdata/analysis/files/Descriptor.h>

#include <optional>
#include <string>

namespace tool {

/// Names in a file, each ended by a separator, read piece by piece.
class NameList {
public:
    /// \param file       "-" for standard input
    /// \param separator  a line feed or NUL
    ///
    /// Throws `Failure` when the file cannot be opened.
    NameList(const std::string& file, char separator);

    /// The next name that is not empty; no value at the end. Throws `Failure` when the file cannot be read, or holds
    /// something that cannot be a name. There are no more names then.
    std::optional<std::string> next();

private:
    std::optional<std::string> takeName();
    bool readMore();
    void refuseUnlessName(const std::string& name);
    [[noreturn]] void fail(const std::string& reason);

    std::string file_;
    char separator_;
    std::optional<lv::analysis::Descriptor> opened_;  // not for standard input
    std::string text_;
    bool atEnd_ = false;
};

}  // namespace tool
