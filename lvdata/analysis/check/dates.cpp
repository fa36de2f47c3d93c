#include <lvdata/analysis/check/dates.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace lv::analysis {
namespace {

constexpr std::string_view digits = "0123456789";

/// Reads along a text, a piece at a time.
class Pieces {
public:
    explicit Pieces(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }

    /// Takes at least and at most so many digits. Their value, or -1 when there are fewer.
    int number(std::size_t least, std::size_t most) {
        std::size_t length = 0;
        int value = 0;
        while (length < most && length < rest_.size() && digits.find(rest_[length]) != std::string_view::npos) {
            value = value * 10 + (rest_[length++] - '0');
        }
        if (length < least) {
            return -1;
        }
        rest_.remove_prefix(length);
        return value;
    }

    /// Takes one of these characters when it comes next. Which, or NUL.
    char oneOf(std::string_view characters) {
        if (rest_.empty() || characters.find(rest_.front()) == std::string_view::npos) {
            return '\0';
        }
        const char taken = rest_.front();
        rest_.remove_prefix(1);
        return taken;
    }

    /// Takes digits, as many as there are. Whether there was one.
    bool takeDigits() {
        const std::size_t length = std::min(rest_.find_first_not_of(digits), rest_.size());
        rest_.remove_prefix(length);
        return length > 0;
    }

private:
    std::string_view rest_;
};

int daysOf(int month, int year) {
    constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days.at(static_cast<std::size_t>(month - 1)) + (month == 2 && isLeapYear ? 1 : 0);
}

bool takeDay(Pieces& pieces) {
    const int year = pieces.number(4, 4);
    const char separator = pieces.oneOf("-/.");
    const std::size_t least = separator == '\0' ? 2 : 1;
    const int month = pieces.number(least, 2);
    const bool isSeparated = separator == '\0' || pieces.oneOf(std::string_view(&separator, 1)) != '\0';
    const int day = pieces.number(least, 2);
    return year >= 0 && month >= 1 && month <= 12 && isSeparated && day >= 1 && day <= daysOf(month, year);
}

bool isBetween(int value, int limit) {
    return value >= 0 && value <= limit;
}

/// "Z", "+02:00", "-0530" or nothing.
bool takeZone(Pieces& pieces) {
    if (pieces.oneOf("Z") != '\0' || pieces.oneOf("+-") == '\0') {
        return true;
    }
    const int hours = pieces.number(2, 2);
    const bool mustHaveMinutes = pieces.oneOf(":") != '\0';
    const bool isDone = pieces.isAtEnd() && !mustHaveMinutes;
    return isBetween(hours, 14) && (isDone || isBetween(pieces.number(2, 2), 59));
}

bool takeTime(Pieces& pieces) {
    const int hours = pieces.number(1, 2);
    pieces.oneOf(":");
    const int minutes = pieces.number(2, 2);
    const bool mustHaveSeconds = pieces.oneOf(":") != '\0';
    const int seconds = pieces.number(2, 2);
    const bool isWhole = pieces.oneOf(".,") == '\0' || pieces.takeDigits();
    const bool isEndOfDay = hours == 24 && minutes == 0 && seconds <= 0;
    return (isBetween(hours, 23) || isEndOfDay) && isBetween(minutes, 59) && seconds <= 60 &&
           (seconds >= 0 || !mustHaveSeconds) && isWhole && takeZone(pieces);
}

}  // namespace

bool isDate(std::string_view text) {
    Pieces pieces(text);
    if (!takeDay(pieces)) {
        return false;
    }
    if (pieces.isAtEnd()) {
        return true;
    }
    return pieces.oneOf("T ") != '\0' && takeTime(pieces) && pieces.isAtEnd();
}

}  // namespace lv::analysis
