#pragma once

#include "InputOptions.h"

#include <atomic>
#include <cstddef>
#include <optional>
#include <thread>

namespace tool {

/// Counts the inputs of a command on a separate thread, while they are processed.
class InputCount {
public:
    /// The options must outlive the count.
    explicit InputCount(const InputOptions& options);

    /// Ends the thread, also before all are counted.
    ~InputCount();

    InputCount(const InputCount&) = delete;
    InputCount& operator=(const InputCount&) = delete;
    InputCount(InputCount&&) = delete;
    InputCount& operator=(InputCount&&) = delete;

    /// No value while counting, and when the count cannot be known: a list may come from a pipe, which can be read only
    /// once.
    [[nodiscard]] std::optional<std::size_t> total() const;

private:
    void run(const InputOptions& options);

    std::atomic<std::size_t> count_{0};
    std::atomic<bool> isComplete_{false};
    std::atomic<bool> isCancelled_{false};
    std::thread thread_;
};

}  // namespace tool
