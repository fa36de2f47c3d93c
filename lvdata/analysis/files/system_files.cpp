#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/Place.h>
#include <lvdata/analysis/files/TemporaryFile.h>
#include <lvdata/analysis/files/rights.h>
#include <lvdata/analysis/files/system_files.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;
using Status = struct stat;

Status statusOf(int descriptor) {
    Status status = {};
    checked(::fstat(descriptor, &status));
    return status;
}

bool isStandardOutput(const Status& file) {
    Status output = {};
    return ::fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == file.st_dev && output.st_ino == file.st_ino;
}

/// Puts a new file in the place of the old one, or where none is.
void replace(const Place& place, const Descriptor* old, std::string_view text) {
    TemporaryFile file(place.folder(), old == nullptr ? 0666 : 0600);
    file.write(text);
    if (old != nullptr) {
        adoptRights(file.descriptor(), old->get());
    }
    file.storeAs(place.name());
}

void writeInto(Descriptor file, std::string_view text) {
    writeAll(file.get(), text);
    file.close();
}

void writeExisting(const Place& place, Descriptor existing, std::string_view text) {
    const Status status = statusOf(existing.get());
    if (isStandardOutput(status)) {
        writeAll(STDOUT_FILENO, text);
    } else if (!S_ISREG(status.st_mode)) {
        writeInto(std::move(existing), text);
    } else if (place.isLinkOfSystem()) {
        throw std::system_error(EOPNOTSUPP, std::generic_category(), "cannot replace the open file of another process");
    } else {
        replace(place, &existing, text);
    }
}

}  // namespace

int openForReading(const Path& path) {
    return checked(::open(path.c_str(), O_RDONLY | O_CLOEXEC));  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

std::size_t readSome(int descriptor, char* block, std::size_t size) {
    ssize_t got = -1;
    do {
        got = ::read(descriptor, block, size);
    } while (got < 0 && errno == EINTR);
    return static_cast<std::size_t>(checked(got));
}

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written >= 0 || errno != EINTR) {
            text.remove_prefix(static_cast<std::size_t>(checked(written)));
        }
    }
}

int closeDescriptor(int descriptor) noexcept {
    return ::close(descriptor);
}

void writeTo(const Path& path, std::string_view text) {
    const Place place(path);
    if (const auto own = place.ownDescriptor()) {
        writeAll(*own, text);
    } else if (auto existing = place.openForWriting()) {
        writeExisting(place, std::move(*existing), text);
    } else {
        replace(place, nullptr, text);
    }
}

}  // namespace lv::analysis
