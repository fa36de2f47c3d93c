#include <lvdata/analysis/files/DocumentWalk.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace lv::analysis {
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

/// Includes files that cannot be opened, so that reading them reports the error.
bool isDocument(const fs::directory_entry& entry) {
    std::error_code ignored;
    return isDocumentName(entry.path().filename().u8string()) && !entry.is_directory(ignored) &&
           !entry.is_other(ignored);
}

}  // namespace

std::string pathIn(const std::string& folder, const std::string& name) {
    std::string path = (fs::u8path(folder) / "").u8string();
    if (path.size() > folder.size()) {
        path.back() = '/';
    }
    return path + name;
}

void DocumentWalk::start(const std::string& path) {
    levels_.clear();
    emptyFolder_.clear();
    std::error_code ignored;
    if (!fs::is_directory(fs::u8path(path), ignored)) {
        given_ = Found{path, {}, {}};
        return;
    }
    given_ = enter(path);
    if (!given_) {
        emptyFolder_ = path;
    }
}

std::optional<DocumentWalk::Found> DocumentWalk::next() {
    if (given_) {
        return std::exchange(given_, std::nullopt);
    }
    if (auto found = nextInFolder()) {
        emptyFolder_.clear();  // where a folder cannot be read, one message is enough
        return found;
    }
    if (emptyFolder_.empty()) {
        return std::nullopt;
    }
    return Found{std::exchange(emptyFolder_, {}), "no files named *.xml in this folder",
                 make_error_code(std::errc::no_such_file_or_directory)};
}

std::optional<DocumentWalk::Found> DocumentWalk::nextInFolder() {
    while (!levels_.empty()) {
        Level& level = levels_.back();
        if (level.entries.empty()) {
            levels_.pop_back();
            continue;
        }
        const Entry entry = std::move(level.entries.back());
        level.entries.pop_back();
        std::string path = pathIn(level.folder, entry.name);
        if (!entry.isFolder) {
            return Found{std::move(path), {}, {}};
        }
        if (auto failed = enter(path)) {
            return failed;
        }
    }
    return std::nullopt;
}

/// No value when the folder was entered; otherwise why not.
std::optional<DocumentWalk::Found> DocumentWalk::enter(const std::string& folder) {
    try {
        levels_.push_back(readFolder(folder));
    } catch (const fs::filesystem_error& error) {
        return Found{folder, error.code().message(), error.code()};
    }
    return std::nullopt;
}

DocumentWalk::Level DocumentWalk::readFolder(const std::string& folder) {
    Level level{folder, {}};
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::u8path(folder))) {
        const bool folderInside = isFolder(entry);
        if (folderInside || isDocument(entry)) {
            level.entries.push_back({entry.path().filename().u8string(), folderInside});
        }
    }
    std::sort(level.entries.begin(), level.entries.end(),
              [](const Entry& left, const Entry& right) { return left.name > right.name; });
    return level;
}

}  // namespace lv::analysis
