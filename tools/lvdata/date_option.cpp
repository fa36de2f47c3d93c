#include "date_option.h"

#include "CommandLine.h"
#include "Failure.h"
#include "environment.h"
#include "system.h"

#include <charconv>
#include <ctime>
#include <iterator>
#include <optional>
#include <string_view>

namespace tool {
namespace {

std::string padded(int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits > text.size() ? digits - text.size() : 0, '0') + text;
}

std::string dayText(const std::tm& day) {
    return padded(day.tm_year + 1900, 4) + '-' + padded(day.tm_mon + 1, 2) + '-' + padded(day.tm_mday, 2);
}

/// The day in UTC of a time as SOURCE_DATE_EPOCH gives it: seconds since 1970.
std::optional<std::tm> dayOf(std::string_view seconds) {
    constexpr std::time_t latest = 253402300799;  // the end of the year 9999
    std::time_t time = 0;
    const char* const end = std::next(seconds.data(), static_cast<std::ptrdiff_t>(seconds.size()));
    const auto [stop, error] = std::from_chars(seconds.data(), end, time);
    const bool isTime = error == std::errc() && stop == end && 0 <= time && time <= latest;
    return isTime ? timeInUTC(time) : std::nullopt;
}

std::tm today() {
    return localTime(std::time(nullptr)).value_or(std::tm{});
}

}  // namespace

void addDateOption(CLI::App& command, std::string& date) {
    command.add_option("--date", date, "Date to print, such as 2024-05-02; now for today's date (default: no date)")
        ->type_name("TEXT");
}

std::string dateText(const std::string& date) {
    if (date != "now") {
        return date;
    }
    const std::string_view epoch = environmentVariable("SOURCE_DATE_EPOCH");
    const auto day = epoch.empty() ? std::optional(today()) : dayOf(epoch);
    if (!day) {
        throw Failure(program, "SOURCE_DATE_EPOCH is not a number of seconds: '" + std::string(epoch) + "'");
    }
    return dayText(*day);
}

}  // namespace tool
