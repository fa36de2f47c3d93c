#include "InputCount.h"

#include "Failure.h"
#include "InputWalk.h"
#include "files.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <string>
#include <system_error>

namespace tool {
namespace {

bool canBeReadTwice(const std::string& list) {
    std::error_code ignored;
    return list != standardStream && std::filesystem::is_regular_file(std::filesystem::u8path(list), ignored);
}

/// False at the end. A folder that cannot be read counts, too: it becomes a message.
bool takeNext(InputWalk& inputs) {
    try {
        return inputs.next().has_value();
    } catch (const Failure&) {
        return true;
    }
}

}  // namespace

InputCount::InputCount(const InputOptions& options) {
    if (std::all_of(options.lists.begin(), options.lists.end(), canBeReadTwice)) {
        try {
            thread_ = std::thread([this, &options] { run(options); });
        } catch (const std::system_error&) {  // NOLINT(bugprone-empty-catch): then there is no count
        }
    }
}

InputCount::~InputCount() {
    isCancelled_ = true;
    if (thread_.joinable()) {
        thread_.join();
    }
}

std::optional<std::size_t> InputCount::total() const {
    return isComplete_ ? std::optional<std::size_t>(count_) : std::nullopt;
}

void InputCount::run(const InputOptions& options) {
    try {
        InputWalk inputs(options);
        while (!isCancelled_ && takeNext(inputs)) {
            ++count_;
        }
        isComplete_ = !isCancelled_;
    } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch): then the total stays unknown
    }
}

}  // namespace tool
