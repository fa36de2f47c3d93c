#pragma once

#include <lvdata/analysis/files/Descriptor.h>

#include <filesystem>
#include <optional>
#include <string>

namespace lv::analysis {

/// A name in an open folder: what a path leads to after all symbolic links, whether or not anything is there. Functions
/// throw `std::system_error`.
class Place {
public:
    explicit Place(const std::filesystem::path& path) : Place(followed(path)) {}

    [[nodiscard]] int folder() const { return folder_.get(); }
    [[nodiscard]] const std::string& name() const { return name_; }

    /// Whether it is a link that the system makes to an open file, such as "/proc/self/fd/1" and "/dev/stdout". The
    /// target text of such a link may name a different file, or none.
    [[nodiscard]] bool isLinkOfSystem() const { return isLinkOfSystem_; }

    /// The existing file, opened for writing and otherwise unchanged; no value when there is none.
    [[nodiscard]] std::optional<Descriptor> openForWriting() const;

    /// The open descriptor of this process that the link of the system leads to; no value when it is not such a link.
    [[nodiscard]] std::optional<int> ownDescriptor() const;

private:
    Place(int base, const std::filesystem::path& path);
    [[nodiscard]] static Place followed(const std::filesystem::path& path);
    [[nodiscard]] std::optional<std::filesystem::path> linkText() const;

    Descriptor folder_;
    std::string name_;
    bool isLinkOfSystem_ = false;
};

}  // namespace lv::analysis
