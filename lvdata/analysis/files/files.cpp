#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/Place.h>
#include <lvdata/analysis/files/TemporaryFile.h>
#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/files/rights.h>

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <sys/stat.h>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;
using Status = struct stat;

/// Up to that many bytes; fewer at the end.
std::string readUpTo(std::size_t most, int descriptor) {
    std::string text;
    std::array<char, 65536> block{};
    while (text.size() < most) {
        const std::size_t wanted = std::min(block.size(), most - text.size());
        const ssize_t got = ::read(descriptor, block.data(), wanted);
        if (got == 0) {
            break;
        }
        if (got > 0 || errno != EINTR) {
            text.append(block.data(), static_cast<std::size_t>(checked(got)));
        }
    }
    return text;
}

Descriptor openForReading(const Path& path) {
    return Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

template <class Read>
FileContent contentOf(const Read& read) {
    try {
        return {read(), {}};
    } catch (const std::system_error& error) {
        return {"", error.code()};
    }
}

template <class Write>
SaveResult resultOf(const Write& write) {
    try {
        write();
        return {};
    } catch (const std::system_error& error) {
        return {error.what(), error.code()};
    }
}

Status statusOf(int descriptor) {
    Status status = {};
    checked(::fstat(descriptor, &status));
    return status;
}

bool isStandardOutput(const Status& file) {
    Status output = {};
    return ::fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == file.st_dev && output.st_ino == file.st_ino;
}

/// Replaces the file with a new one, or creates it.
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

}  // namespace

FileContent readFile(const Path& path, std::size_t most) {
    return contentOf([&] { return readUpTo(most, openForReading(path).get()); });
}

FileContent readDescriptor(int descriptor, std::size_t most) {
    return contentOf([&] { return readUpTo(most, descriptor); });
}

SaveResult save(const Path& path, const DataObject& record, const SaveOptions& options) {
    std::string text = record.toXMLString(options.declaration, options.pretty);
    if (text.empty() || text.back() != '\n') {
        text += '\n';
    }
    return writeFile(path, text);
}

SaveResult writeFile(const Path& path, std::string_view text) {
    return resultOf([&] { writeTo(path, text); });
}

SaveResult writeDescriptor(int descriptor, std::string_view text) {
    return resultOf([&] { writeAll(descriptor, text); });
}

}  // namespace lv::analysis
