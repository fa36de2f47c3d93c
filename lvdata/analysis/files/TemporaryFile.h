#pragma once

#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/HeldSignals.h>

#include <string>
#include <string_view>

#include <sys/types.h>

namespace lv::analysis {

/// A new file with a unique name, ".lvdata-XXXXXX", in an open folder. It is removed at the end unless it was stored
/// under another name. Functions throw `std::system_error`.
///
/// A program that is asked to end by a signal removes the file first: writing looks for the signal after each block and
/// then stops with "Interrupted system call". No signal handler is needed for that, so it works in any program. The
/// file stays only if the program is killed (SIGKILL) or the signal goes to another thread.
class TemporaryFile {
public:
    /// \param folder  stays open as long as the file; a folder that is renamed or moved meanwhile makes no difference
    /// \param mode    the permission bits, from which the umask or the folder's default access list takes some
    TemporaryFile(int folder, mode_t mode);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_.get(); }

    void write(std::string_view text);

    /// Stores what was written, and gives the file this name in the folder; an existing file with that name is
    /// replaced.
    void storeAs(const std::string& name);

private:
    HeldSignals held_;  // first, so that they are let go after the file is removed
    int folder_;
    std::string name_;
    Descriptor descriptor_;
};

}  // namespace lv::analysis
