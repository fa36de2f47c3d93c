#pragma once

#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/HeldSignals.h>

#include <string>
#include <string_view>

#include <sys/types.h>

namespace lv::analysis {

/// A new file with a name of its own, ".lvdata-XXXXXX", in an open folder. It is removed at the end unless it was
/// stored under another name. Functions throw `std::system_error`.
///
/// A program that is asked to end by a signal removes the file first: writing looks for the signal after each block and
/// then stops with "Interrupted system call". Nothing is registered for that, so it works in any program. Only a
/// program that is killed (SIGKILL), or a signal that goes to another thread, leaves the file.
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

    /// Stores what was written, and gives the file this name in the folder, in the place of one that has it.
    void storeAs(const std::string& name);

private:
    HeldSignals held_;  // first, so that they are let go after the file is removed
    int folder_;
    std::string name_;
    Descriptor descriptor_;
};

}  // namespace lv::analysis
