#include "Progress.h"

#include "environment.h"
#include "system.h"

#include <cmath>
#include <iostream>
#include <utility>

namespace tool {
namespace {

using namespace std::chrono_literals;

constexpr auto interval = 100ms;
constexpr std::string_view eraseLine = "\r\x1b[K";

std::string rounded(double number) {
    return std::to_string(std::llround(number));
}

/// "9 s", "2 min 5 s", "3 h 10 min"
std::string durationText(double seconds) {
    const long long whole = std::llround(std::ceil(seconds));
    if (whole < 60) {
        return std::to_string(whole) + " s";
    }
    if (whole < 3600) {
        return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
    }
    return std::to_string(whole / 3600) + " h " + std::to_string(whole % 3600 / 60) + " min";
}

}  // namespace

std::string progressText(std::size_t done, std::optional<std::size_t> total, std::chrono::duration<double> elapsed) {
    std::string text = std::to_string(done);
    if (total) {
        text += " of " + std::to_string(*total);
    }
    text += " files";
    if (done == 0 || elapsed.count() <= 0) {
        return text;
    }
    const double rate = static_cast<double>(done) / elapsed.count();
    text += ", " + (rate < 10 ? rounded(rate * 60) + "/min" : rounded(rate) + "/s");
    if (total && *total >= done) {
        text += ", " + durationText(static_cast<double>(*total - done) / rate) + " left";
    }
    return text;
}

Progress::Progress(Write write, Now now)
    : write_(std::move(write)),
      now_(std::move(now)),
      start_(now_()),
      nextTime_(start_ + interval) {}

void Progress::show(std::size_t done, std::optional<std::size_t> total) {
    if (!write_ || now_() < nextTime_) {
        return;
    }
    write_(std::string(eraseLine) + progressText(done, total, now_() - start_));
    isDrawn_ = true;
    nextTime_ = now_() + interval;
}

void Progress::hide() {
    if (isDrawn_) {
        write_(eraseLine);
        isDrawn_ = false;
    }
}

Progress::Write terminalWriter() {
    if (!isTerminal(standardError) || !terminalUnderstandsEscapes()) {
        return {};
    }
    return [](std::string_view text) {
        std::cerr << text << std::flush;
    };
}

}  // namespace tool
