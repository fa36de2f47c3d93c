#include "files.h"

#include "Descriptor.h"
#include "Failure.h"
#include "limit_options.h"
#include "replace_file.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

namespace tool {
namespace {

using Path = std::filesystem::path;
using Status = struct stat;

/// Up to so many bytes; less when there are no more.
std::string readUpTo(std::size_t count, int descriptor) {
    std::string text;
    std::array<char, 65536> block{};
    while (text.size() < count) {
        const std::size_t wanted = std::min(block.size(), count - text.size());
        const auto got = static_cast<std::size_t>(checked(::read(descriptor, block.data(), wanted)));
        if (got == 0) {
            break;
        }
        text.append(block.data(), got);
    }
    return text;
}

int openFile(const Path& path, int mode) {
    return ::open(path.c_str(), mode);  // NOLINT(cppcoreguidelines-pro-type-vararg): that is how it is declared
}

std::string readUpTo(std::size_t count, const std::string& file) {
    if (file == standardStream) {
        return readUpTo(count, STDIN_FILENO);
    }
    const Descriptor opened(openFile(file, O_RDONLY));
    return readUpTo(count, opened.get());
}

/// Of the file behind all symbolic links; nothing when there is none.
std::optional<Status> statusOf(const Path& path) {
    Status status;
    const int result = ::stat(path.c_str(), &status);
    if (result != 0 && errno == ENOENT) {
        return std::nullopt;
    }
    checked(result);
    return status;
}

bool isStandardOutput(const Status& file) {
    Status output;
    return ::fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == file.st_dev && output.st_ino == file.st_ino;
}

/// Where a chain of symbolic links leads, also when nothing is there yet.
Path followLinks(Path path) {
    while (std::filesystem::is_symlink(path)) {
        path = path.parent_path() / std::filesystem::read_symlink(path);
    }
    return path;
}

void writeInto(const Path& path, std::string_view text) {
    Descriptor file(openFile(path, O_WRONLY));
    writeAll(file.get(), text);
    file.close();
}

void replaceExisting(const Path& path, const Status& old, std::string_view text) {
    checked(::access(path.c_str(), W_OK));  // a rename would pass over the file's write protection
    replaceFile(followLinks(path), &old, text);
}

void writeFile(const Path& path, std::string_view text) {
    const std::optional<Status> existing = statusOf(path);
    if (!existing) {
        replaceFile(followLinks(path), nullptr, text);
    } else if (isStandardOutput(*existing)) {
        writeAll(STDOUT_FILENO, text);  // "/dev/stdout", with what it is redirected to kept open
    } else if (!S_ISREG(existing->st_mode)) {
        writeInto(path, text);
    } else {
        replaceExisting(path, *existing, text);
    }
}

}  // namespace

std::string inputName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

std::string readInput(const std::string& file, std::size_t limit) {
    std::string text;
    try {
        text = readUpTo(limit + 1, file);
    } catch (const std::system_error& error) {
        throw Failure(inputName(file), error.code().message());
    }
    if (text.size() > limit) {
        throw Failure(inputName(file), excessReason({lv::Excess::What::bytes, limit, limit, 0}));
    }
    return text;
}

void writeOutput(const std::string& file, std::string_view text) {
    const bool toStandardOutput = file == standardStream;
    try {
        toStandardOutput ? writeAll(STDOUT_FILENO, text) : writeFile(file, text);
    } catch (const std::system_error& error) {
        throw Failure(toStandardOutput ? "<stdout>" : file, error.code().message());
    }
}

}  // namespace tool
