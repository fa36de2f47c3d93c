#include <lvdata/analysis/dates.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace lv::analysis {
namespace {

constexpr std::string_view digits = "0123456789";

/// Reads a text piece by piece.
class Pieces {
public:
    explicit Pieces(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }

    /// Takes digits: at least and at most these numbers of them. Their value, or -1 when there are fewer.
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

    /// Takes one of these characters if it comes next, and returns it; otherwise NUL.
    char oneOf(std::string_view characters) {
        if (rest_.empty() || characters.find(rest_.front()) == std::string_view::npos) {
            return '\0';
        }
        const char taken = rest_.front();
        rest_.remove_prefix(1);
        return taken;
    }

    /// Takes digits, as many as there are: the digits of a fraction after its point. No value when there is none.
    std::optional<double> fraction() {
        const std::size_t length = std::min(rest_.find_first_not_of(digits), rest_.size());
        double value = 0;
        double step = 0.1;
        for (const char digit : rest_.substr(0, length)) {
            value += (digit - '0') * step;
            step /= 10;
        }
        rest_.remove_prefix(length);
        return length > 0 ? std::optional(value) : std::nullopt;
    }

private:
    std::string_view rest_;
};

struct Day {
    int year;
    int month;
    int day;
};

int lengthOfMonth(int month, int year) {
    constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days.at(static_cast<std::size_t>(month - 1)) + (month == 2 && isLeapYear ? 1 : 0);
}

std::optional<Day> takeDay(Pieces& pieces) {
    const int year = pieces.number(4, 4);
    const char separator = pieces.oneOf("-/.");
    const std::size_t least = separator == '\0' ? 2 : 1;
    const int month = pieces.number(least, 2);
    const bool isSeparated = separator == '\0' || pieces.oneOf(std::string_view(&separator, 1)) != '\0';
    const int day = pieces.number(least, 2);
    const bool isDay = year >= 0 && month >= 1 && month <= 12 && isSeparated && day >= 1;
    return isDay && day <= lengthOfMonth(month, year) ? std::optional(Day{year, month, day}) : std::nullopt;
}

bool isBetween(int value, int limit) {
    return value >= 0 && value <= limit;
}

/// "Z", "+02:00", "-0530" or nothing: how many minutes the clock is ahead of UTC.
std::optional<int> takeZone(Pieces& pieces) {
    const char sign = pieces.oneOf("Z") != '\0' ? '\0' : pieces.oneOf("+-");
    if (sign == '\0') {
        return 0;
    }
    const int hours = pieces.number(2, 2);
    const bool mustHaveMinutes = pieces.oneOf(":") != '\0';
    const int minutes = pieces.isAtEnd() && !mustHaveMinutes ? 0 : pieces.number(2, 2);
    const int ahead = hours * 60 + minutes;
    const bool isZone = isBetween(hours, 14) && isBetween(minutes, 59);
    return isZone ? std::optional(sign == '-' ? -ahead : ahead) : std::nullopt;
}

/// In days.
std::optional<double> takeTime(Pieces& pieces) {
    const int hours = pieces.number(1, 2);
    pieces.oneOf(":");
    const int minutes = pieces.number(2, 2);
    const bool mustHaveSeconds = pieces.oneOf(":") != '\0';
    const int seconds = pieces.number(2, 2);
    const auto fraction = pieces.oneOf(".,") == '\0' ? 0.0 : pieces.fraction();
    const bool isEndOfDay = hours == 24 && minutes == 0 && seconds <= 0;
    const bool isTime = (isBetween(hours, 23) || isEndOfDay) && isBetween(minutes, 59) && seconds <= 60 &&
                        (seconds >= 0 || !mustHaveSeconds) && fraction;
    const auto ahead = isTime ? takeZone(pieces) : std::nullopt;
    if (!ahead) {
        return std::nullopt;
    }
    return (hours * 60 + minutes - *ahead) / 1440.0 + (std::max(seconds, 0) + *fraction) / 86400.0;
}

/// Days since 1970-01-01 in the Gregorian calendar, also before it began.
double dayNumber(const Day& day) {
    const int years = day.month > 2 ? day.year : day.year - 1;  // a year that begins in March, for the leap days
    const int months = (day.month + 9) % 12;
    const int leapDays = years >= 0 ? years / 4 - years / 100 + years / 400 : -1;
    constexpr int from0To1970 = 719468;  // from March 1 of the year 0
    return years * 365 + leapDays + (months * 153 + 2) / 5 + day.day - 1 - from0To1970;
}

}  // namespace

std::optional<double> daysSince1970(std::string_view text) {
    Pieces pieces(text);
    const auto day = takeDay(pieces);
    if (!day) {
        return std::nullopt;
    }
    if (pieces.isAtEnd()) {
        return dayNumber(*day);
    }
    const auto time = pieces.oneOf("T ") != '\0' ? takeTime(pieces) : std::nullopt;
    return time && pieces.isAtEnd() ? std::optional(dayNumber(*day) + *time) : std::nullopt;
}

bool isDate(std::string_view text) {
    return daysSince1970(text).has_value();
}

}  // namespace lv::analysis
