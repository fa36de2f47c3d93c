#include "InputWalk.h"

#include "Failure.h"
#include "files.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace tool {
namespace {

namespace fs = std::filesystem;

bool isDocumentName(std::string_view name) {
    constexpr std::string_view ending = ".xml";
    return name.size() >= ending.size() && name.substr(name.size() - ending.size()) == ending;
}

/// A folder, but not a link to one.
bool isFolder(const fs::directory_entry& entry) {
    std::error_code ignored;
    return !entry.is_symlink(ignored) && entry.is_directory(ignored);
}

/// Also a file that cannot be opened, so that reading it tells why.
bool isDocument(const fs::directory_entry& entry) {
    std::error_code ignored;
    return isDocumentName(entry.path().filename().native()) && !entry.is_directory(ignored) && !entry.is_other(ignored);
}

}  // namespace

std::optional<Input> InputWalk::next() {
    while (true) {
        if (auto found = nextInFolder()) {
            emptyFolder_.clear();
            return found;
        }
        if (!emptyFolder_.empty()) {
            throw Failure(std::exchange(emptyFolder_, {}), "folder without files named *.xml");
        }
        const auto path = nextPath();
        std::error_code ignored;
        if (!path) {
            return std::nullopt;
        }
        if (*path == standardStream || !fs::is_directory(*path, ignored)) {
            return Input{*path};
        }
        enter(*path);
        emptyFolder_ = *path;
    }
}

std::optional<Input> InputWalk::nextInFolder() {
    while (!levels_.empty()) {
        Level& level = levels_.back();
        if (level.entries.empty()) {
            levels_.pop_back();
            continue;
        }
        const Entry entry = std::move(level.entries.back());
        level.entries.pop_back();
        std::string path = fs::path(level.folder) / entry.name;
        if (!entry.isFolder) {
            return Input{std::move(path)};
        }
        enter(path);
    }
    return std::nullopt;
}

void InputWalk::enter(const std::string& folder) {
    try {
        levels_.push_back(readFolder(folder));
    } catch (const fs::filesystem_error& error) {
        emptyFolder_.clear();  // one message is enough
        throw Failure(folder, error.code().message());
    }
}

InputWalk::Level InputWalk::readFolder(const std::string& folder) {
    Level level{folder, {}};
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const bool folderInside = isFolder(entry);
        if (folderInside || isDocument(entry)) {
            level.entries.push_back({entry.path().filename(), folderInside});
        }
    }
    std::sort(level.entries.begin(), level.entries.end(),
              [](const Entry& left, const Entry& right) { return left.name > right.name; });
    return level;
}

std::optional<std::string> InputWalk::nextPath() {
    if (pathsTaken_ < options_.paths.size()) {
        return options_.paths[pathsTaken_++];
    }
    return nextListedPath();
}

std::optional<std::string> InputWalk::nextListedPath() {
    while (list_ || listsTaken_ < options_.lists.size()) {
        if (!list_) {
            list_.emplace(options_.lists[listsTaken_++], options_.listsAreNulSeparated ? '\0' : '\n');
        }
        if (auto name = list_->next()) {
            return *name == standardStream ? "./-" : *name;  // in a list it is a file of that name
        }
        list_.reset();
    }
    return std::nullopt;
}

}  // namespace tool
