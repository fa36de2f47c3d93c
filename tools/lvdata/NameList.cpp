#include "NameList.h"

#include "Failure.h"
#include "files.h"
#include "system.h"

#include <lvdata/analysis/files/system_files.h>

#include <array>
#include <filesystem>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t longestName =
    65536;  // longer than any path; otherwise a list without separators would fill the memory

}  // namespace

NameList::NameList(const std::string& file, char separator) : file_(file), separator_(separator) {
    if (file == standardStream) {
        return;
    }
    try {
        opened_.emplace(lv::analysis::openForReading(std::filesystem::u8path(file)));
    } catch (const std::system_error& error) {
        fail(error.code().message());
    }
}

std::optional<std::string> NameList::next() {
    while (auto name = takeName()) {
        if (!name->empty()) {
            refuseUnlessName(*name);
            return name;
        }
    }
    return std::nullopt;
}

/// The text up to the next separator, or to the end.
std::optional<std::string> NameList::takeName() {
    std::size_t end = text_.find(separator_);
    while (end == std::string::npos && readMore()) {
        end = text_.find(separator_);
    }
    if (end == std::string::npos) {
        return text_.empty() ? std::nullopt : std::optional(std::exchange(text_, {}));
    }
    std::string name = text_.substr(0, end);
    text_.erase(0, end + 1);
    return name;
}

/// False at the end of the file.
bool NameList::readMore() {
    if (text_.size() > longestName) {
        fail("name longer than " + std::to_string(longestName) + " bytes");
    }
    if (atEnd_) {
        return false;
    }
    std::array<char, 4096> block{};
    try {
        const int descriptor = opened_ ? opened_->get() : standardInput;
        const std::size_t got = lv::analysis::readSome(descriptor, block.data(), block.size());
        text_.append(block.data(), got);
        atEnd_ = got == 0;
    } catch (const std::system_error& error) {
        fail(error.code().message());
    }
    return !atEnd_;
}

void NameList::refuseUnlessName(const std::string& name) {
    if (name.find('\0') != std::string::npos) {
        fail("NUL character in a name (separated by NUL: -0)");
    }
}

void NameList::fail(const std::string& reason) {
    atEnd_ = true;
    text_.clear();
    throw Failure(inputName(file_), reason);
}

}  // namespace tool
