#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// "120 of 500 files, 40/s, 10 s left"; without a total "120 files, 40/s".
[[nodiscard]] std::string progressText(std::size_t done, std::optional<std::size_t> total,
                                       std::chrono::duration<double> elapsed);

/// A progress line on a terminal, which is updated in place and erased before anything else is written there.
class Progress {
public:
    using Clock = std::chrono::steady_clock;
    using Write = std::function<void(std::string_view)>;
    using Now = std::function<Clock::time_point()>;

    /// \param write  writes to the terminal; empty: nothing is ever shown
    explicit Progress(Write write, Now now = Clock::now);
    ~Progress() { hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    Progress(Progress&&) = delete;
    Progress& operator=(Progress&&) = delete;

    [[nodiscard]] bool isShown() const { return static_cast<bool>(write_); }

    /// Draws the line, unless it was drawn a moment ago.
    void show(std::size_t done, std::optional<std::size_t> total);

    /// Erases the line, if it was drawn.
    void hide();

private:
    Write write_;
    Now now_;
    Clock::time_point start_;
    Clock::time_point nextTime_;
    bool isDrawn_ = false;
};

/// A function that writes to standard error if that is a terminal that can erase a line; otherwise empty.
[[nodiscard]] Progress::Write terminalWriter();

}  // namespace tool
