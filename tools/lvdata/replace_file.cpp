#include "replace_file.h"

#include "Descriptor.h"

#include <cstdlib>
#include <string>

#include <fcntl.h>

namespace tool {
namespace {

/// A new file of a name of its own, which only its owner may open; removed at the end unless it was renamed.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::filesystem::path& folder)
        : path_(folder / ".lvdata-XXXXXX"),
          descriptor_(::mkstemp(path_.data())) {}

    ~TemporaryFile() {
        if (!path_.empty()) {
            ::unlink(path_.c_str());
        }
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_.get(); }

    void storeAs(const std::filesystem::path& target) {
        checked(::fsync(descriptor_.get()));
        descriptor_.close();
        checked(::rename(path_.c_str(), target.c_str()));
        path_.clear();
    }

private:
    std::string path_;
    Descriptor descriptor_;
};

void adoptRights(int descriptor, const struct stat& old) {
    // Only a privileged user can give files away; for others the new file is simply theirs.
    [[maybe_unused]] const int ignored = ::fchown(descriptor, old.st_uid, old.st_gid);
    checked(::fchmod(descriptor, old.st_mode & 07777U));
}

void adoptDefaultRights(int descriptor) {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    checked(::fchmod(descriptor, 0666U & ~mask));
}

}  // namespace

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        text.remove_prefix(static_cast<std::size_t>(checked(::write(descriptor, text.data(), text.size()))));
    }
}

void replaceFile(const std::filesystem::path& target, const struct stat* old, std::string_view text) {
    const bool bare = !target.has_parent_path();
    TemporaryFile file(bare ? "." : target.parent_path());
    writeAll(file.descriptor(), text);
    if (old != nullptr) {
        adoptRights(file.descriptor(), *old);
    } else {
        adoptDefaultRights(file.descriptor());
    }
    file.storeAs(target);
}

}  // namespace tool
