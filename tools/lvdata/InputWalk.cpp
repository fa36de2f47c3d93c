#include "InputWalk.h"

#include "Failure.h"
#include "files.h"

#include <utility>

namespace tool {

std::optional<Input> InputWalk::next() {
    while (true) {
        if (auto found = walk_.next()) {
            if (!found->reason.empty()) {
                throw Failure(found->path, found->reason);
            }
            return Input{std::move(found->path)};
        }
        const auto path = nextPath();
        if (!path || *path == standardStream) {
            return path ? std::optional(Input{*path}) : std::nullopt;
        }
        walk_.start(*path);
    }
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
