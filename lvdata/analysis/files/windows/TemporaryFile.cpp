#include <lvdata/analysis/files/windows/TemporaryFile.h>

#include <algorithm>
#include <cerrno>
#include <random>
#include <string>

namespace lv::analysis {
namespace {

using Path = std::filesystem::path;

std::string randomName() {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
    std::random_device random;
    std::string name = ".lvdata-";
    for (int count = 0; count < 6; ++count) {
        name += letters[random() % letters.size()];
    }
    return name;
}

/// Opens a file that was not there, and says its path.
HANDLE createIn(const Path& folder, Path& path) {
    constexpr int attempts = 100;
    HANDLE opened = INVALID_HANDLE_VALUE;
    for (int count = 0; count < attempts && opened == INVALID_HANDLE_VALUE; ++count) {
        path = folder / randomName();
        opened = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (opened == INVALID_HANDLE_VALUE && ::GetLastError() != ERROR_FILE_EXISTS) {
            break;
        }
    }
    return opened;
}

void stopIfArrived(const HeldSignals& held) {
    if (held.arrived()) {
        throw std::system_error(EINTR, std::generic_category());
    }
}

}  // namespace

void writeToHandle(HANDLE file, std::string_view text) {
    constexpr std::size_t block = 1024UL * 1024;
    while (!text.empty()) {
        DWORD written = 0;
        require(::WriteFile(file, text.data(), static_cast<DWORD>(std::min(block, text.size())), &written, nullptr) !=
                0);
        text.remove_prefix(written);
    }
}

TemporaryFile::TemporaryFile(const Path& folder) : file_(createIn(folder, path_)) {}

TemporaryFile::~TemporaryFile() {
    file_.close();
    if (!path_.empty()) {
        ::DeleteFileW(path_.c_str());
    }
}

void TemporaryFile::write(std::string_view text) {
    constexpr std::size_t block = 1024UL * 1024;
    while (!text.empty()) {
        stopIfArrived(held_);
        const std::size_t size = std::min(block, text.size());
        writeToHandle(file_.get(), text.substr(0, size));
        text.remove_prefix(size);
    }
}

void TemporaryFile::finish() {
    require(::FlushFileBuffers(file_.get()) != 0);
    file_.close();
    stopIfArrived(held_);
}

void TemporaryFile::storeAs(const Path& path) {
    finish();
    require(::MoveFileExW(path_.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
    path_.clear();
}

void TemporaryFile::replace(const Path& old) {
    finish();
    require(::ReplaceFileW(old.c_str(), path_.c_str(), nullptr, 0, nullptr, nullptr) != 0);
    path_.clear();
}

}  // namespace lv::analysis
