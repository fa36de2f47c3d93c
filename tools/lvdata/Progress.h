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

/// A line on a terminal that is drawn again and again, and erased before anything else is written there.
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

    /// Draws the line, if the last time was long enough ago.
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

/// What writes to standard error where that is a terminal that understands how to erase a line; else empty.
[[nodiscard]] Progress::Write terminalWriter();

}  // namespace tool
