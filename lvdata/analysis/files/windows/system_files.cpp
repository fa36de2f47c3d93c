#include <lvdata/analysis/files/system_files.h>
#include <lvdata/analysis/files/windows/Handle.h>
#include <lvdata/analysis/files/windows/TemporaryFile.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;

constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

Handle openExisting(const Path& path, DWORD access) {
    return Handle(
        ::CreateFileW(path.c_str(), access, sharedByAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

HANDLE handleOf(int descriptor) {
    const auto number = ::_get_osfhandle(descriptor);
    if (number == -1) {
        throw std::system_error(EBADF, std::generic_category());
    }
    return reinterpret_cast<HANDLE>(number);  // NOLINT(*-reinterpret-cast, performance-no-int-to-ptr): as it is meant
}

/// Opened for writing and otherwise unchanged; nothing when nothing is there.
std::optional<Handle> openForWriting(const Path& path) {
    try {
        return openExisting(path, GENERIC_WRITE);
    } catch (const std::system_error& error) {
        if (error.code() == std::errc::no_such_file_or_directory && !path.empty()) {
            return std::nullopt;
        }
        throw;
    }
}

/// The path of an open file after all links.
Path finalPath(HANDLE file) {
    std::wstring text(1024, L'\0');
    DWORD size = ::GetFinalPathNameByHandleW(file, text.data(), static_cast<DWORD>(text.size()), FILE_NAME_NORMALIZED);
    if (size > text.size()) {
        text.resize(size);
        size = ::GetFinalPathNameByHandleW(file, text.data(), size, FILE_NAME_NORMALIZED);
    }
    require(size != 0);
    text.resize(size);
    return text;
}

/// Stands for a folder that was opened as a file; for Windows that is not allowed, which says too little.
void refuseFolder(const Path& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        throw std::system_error(EISDIR, std::generic_category());
    }
}

void writeExisting(Handle existing, std::string_view text) {
    if (::GetFileType(existing.get()) != FILE_TYPE_DISK) {
        writeToHandle(existing.get(), text);
        return;
    }
    const Path target = finalPath(existing.get());
    existing.close();
    TemporaryFile file(target.parent_path());
    file.write(text);
    file.replace(target);
}

}  // namespace

int openForReading(const Path& path) {
    refuseFolder(path);
    Handle file = openExisting(path, GENERIC_READ);
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(file.get()), _O_RDONLY | _O_BINARY | _O_NOINHERIT);  // NOLINT
    if (descriptor < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    file.release();
    return descriptor;
}

std::size_t readSome(int descriptor, char* block, std::size_t size) {
    constexpr std::size_t most = 1U << 30U;
    DWORD got = 0;
    if (::ReadFile(handleOf(descriptor), block, static_cast<DWORD>(std::min(size, most)), &got, nullptr) == 0) {
        require(::GetLastError() == ERROR_BROKEN_PIPE);  // the other end is closed: all was read
    }
    return got;
}

void writeAll(int descriptor, std::string_view text) {
    writeToHandle(handleOf(descriptor), text);
}

int closeDescriptor(int descriptor) noexcept {
    return ::_close(descriptor);
}

void writeTo(const Path& path, std::string_view text) {
    refuseFolder(path);
    if (auto existing = openForWriting(path)) {
        writeExisting(std::move(*existing), text);
        return;
    }
    TemporaryFile file(path.has_parent_path() ? path.parent_path() : Path("."));
    file.write(text);
    file.storeAs(path);
}

}  // namespace lv::analysis
