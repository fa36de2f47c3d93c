#include <lvdata/analysis/files/Place.h>

#include <array>
#include <charconv>
#include <iterator>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;
using Status = struct stat;

[[noreturn]] void fail(int reason) {
    throw std::system_error(reason, std::generic_category());
}

int openFolder(int base, const Path& path) {
    const Path folder = path.has_parent_path() ? path.parent_path() : Path(".");
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): that is how it is declared
    return ::openat(base, folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

/// Whether the system makes up what is in the folder.
bool isOfProcesses(int folder) {
    struct statfs status = {};
    return ::fstatfs(folder, &status) == 0 && status.f_type == PROC_SUPER_MAGIC;
}

}  // namespace

Place::Place(int base, const Path& path) : folder_(openFolder(base, path)), name_(path.filename()) {
    if (name_.empty()) {
        fail(path.empty() ? ENOENT : EISDIR);
    }
}

Place Place::followed(const Path& path) {
    constexpr int mostLinks = 40;  // as the system has it
    Place place(AT_FDCWD, path);
    for (int count = 0; const auto text = place.linkText(); ++count) {
        if (count == mostLinks) {
            fail(ELOOP);
        }
        if (isOfProcesses(place.folder())) {
            place.isLinkOfSystem_ = true;
            break;
        }
        place = Place(place.folder(), *text);
    }
    return place;
}

std::optional<Path> Place::linkText() const {
    std::array<char, 4096> text{};  // PATH_MAX
    const ssize_t size = ::readlinkat(folder(), name_.c_str(), text.data(), text.size());
    if (size < 0 && (errno == EINVAL || errno == ENOENT)) {
        return std::nullopt;
    }
    return Path(std::string(text.data(), static_cast<std::size_t>(checked(size))));
}

std::optional<Descriptor> Place::openForWriting() const {
    const int follow = isLinkOfSystem_ ? 0 : O_NOFOLLOW;  // a link that was put there meanwhile is not followed
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): that is how it is declared
    const int opened = ::openat(folder(), name_.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC | follow);
    if (opened < 0 && errno == ENOENT) {
        return std::nullopt;
    }
    return Descriptor(opened);
}

std::optional<int> Place::ownDescriptor() const {
    int number = -1;
    const char* const end = std::next(name_.data(), static_cast<std::ptrdiff_t>(name_.size()));
    const auto [stop, error] = std::from_chars(name_.data(), end, number);
    if (!isLinkOfSystem_ || error != std::errc() || stop != end) {
        return std::nullopt;
    }
    Status own = {};
    Status target = {};
    const bool isOwn = ::fstat(number, &own) == 0 && ::fstatat(folder(), name_.c_str(), &target, 0) == 0 &&
                       own.st_dev == target.st_dev && own.st_ino == target.st_ino;
    return isOwn ? std::optional(number) : std::nullopt;
}

}  // namespace lv::analysis
