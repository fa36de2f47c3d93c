#include <lvdata/analysis/files/TemporaryFile.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lv::analysis {
namespace {

std::string randomName() {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
    std::array<unsigned char, 6> bytes{};
    checked(::getentropy(bytes.data(), bytes.size()));
    std::string name = ".lvdata-";
    for (const unsigned char byte : bytes) {
        name += letters[byte % letters.size()];
    }
    return name;
}

/// Opens a file that was not there, and says its name.
int createIn(int folder, mode_t mode, std::string& name) {
    constexpr int attempts = 100;
    int opened = -1;
    for (int count = 0; count < attempts && (count == 0 || (opened < 0 && errno == EEXIST)); ++count) {
        name = randomName();
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): that is how it is declared
        opened = ::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    }
    return opened;
}

void stopIfArrived(const HeldSignals& held) {
    if (held.arrived()) {
        throw std::system_error(EINTR, std::generic_category());
    }
}

}  // namespace

TemporaryFile::TemporaryFile(int folder, mode_t mode) : folder_(folder), descriptor_(createIn(folder, mode, name_)) {}

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) {
        ::unlinkat(folder_, name_.c_str(), 0);
    }
}

void TemporaryFile::write(std::string_view text) {
    constexpr std::size_t block = 1024UL * 1024;
    while (!text.empty()) {
        stopIfArrived(held_);
        const std::size_t size = std::min(block, text.size());
        writeAll(descriptor_.get(), text.substr(0, size));
        text.remove_prefix(size);
    }
}

void TemporaryFile::storeAs(const std::string& name) {
    checked(::fsync(descriptor_.get()));
    descriptor_.close();
    stopIfArrived(held_);
    checked(::renameat(folder_, name_.c_str(), folder_, name.c_str()));
    name_.clear();
}

}  // namespace lv::analysis
