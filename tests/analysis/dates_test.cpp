#include <lvdata/analysis/dates.h>

#include <array>
#include <string>

#include <gtest/gtest.h>

using lv::analysis::daysSince1970;
using lv::analysis::isDate;

namespace {

std::string twoDigits(int number) {
    return std::string(number < 10 ? "0" : "") + std::to_string(number);
}

int daysOf(int year, int month) {
    int days = 0;
    for (int day = 0; day <= 40; ++day) {
        days += isDate(std::to_string(year) + '-' + twoDigits(month) + '-' + twoDigits(day)) ? 1 : 0;
    }
    return days;
}

}  // namespace

TEST(Dates, AreDaysOfTheCalendar) {
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 0; month <= 13; ++month) {
        const bool isMonth = month >= 1 && month <= 12;
        EXPECT_EQ(daysOf(2023, month), isMonth ? days.at(static_cast<std::size_t>(month - 1)) : 0) << month;
    }
}

TEST(Dates, KnowLeapYears) {
    EXPECT_EQ(daysOf(2024, 2), 29);
    EXPECT_EQ(daysOf(2000, 2), 29);
    EXPECT_EQ(daysOf(1900, 2), 28);
    EXPECT_EQ(daysOf(2100, 2), 28);
}

TEST(Dates, HaveAnySeparatorTheYearFirst) {
    for (const std::string date : {"2024-03-17", "2024/03/17", "2024.03.17", "20240317", "2024-3-7"}) {
        EXPECT_TRUE(isDate(date)) << date;
    }
    for (const std::string text : {"", "2024", "2024-03", "2024-03-", "2024-03/17", "202-03-17", "17.03.2024",
                                   "03/17/2024", "2024317", "2024-03-177", " 2024-03-17", "2024-03-17 ", "-2024-03-17",
                                   "2024-0x-17", "17th of March", "2024--03-17", "2024-003-17"}) {
        EXPECT_FALSE(isDate(text)) << text;
    }
}

TEST(Dates, MayHaveATime) {
    for (const std::string time : {"T09:31", " 09:31", " 9:31", "T0931", "T093100", "T09:31:00", "T09:31:60",
                                   "T23:59:59", "T24:00", "T24:00:00", "T09:31:00.25", "T09:31:00,250"}) {
        EXPECT_TRUE(isDate("2024-03-17" + time)) << time;
    }
    for (const std::string time :
         {"T", " ", "T09", "T09:", "T09:3", "T09:60", "T25:00", "T24:01", "T24:00:01", "T09:31:", "T09:31:5",
          "T09:31:61", "T09:31:00.", "09:31", "T09:31 ", "T09:31 PM", "_09:31"}) {
        EXPECT_FALSE(isDate("2024-03-17" + time)) << time;
    }
}

TEST(Dates, MayHaveAZone) {
    for (const std::string zone : {"Z", "+02", "+02:00", "-0530", "+14:00"}) {
        EXPECT_TRUE(isDate("2024-03-17T09:31:00" + zone)) << zone;
    }
    for (const std::string zone : {"z", "+", "+2", "+02:", "+15:00", "+02:60", "+02:0", "+02:000", "ZZ", "CET"}) {
        EXPECT_FALSE(isDate("2024-03-17T09:31:00" + zone)) << zone;
    }
}

// The days by `date --utc --date=... +%s`, over 86400.

TEST(Dates, CountTheDaysSince1970) {
    EXPECT_EQ(daysSince1970("1970-01-01"), 0.0);
    EXPECT_EQ(daysSince1970("1969-12-31"), -1.0);
    EXPECT_EQ(daysSince1970("2000-02-29"), 11016.0);
    EXPECT_EQ(daysSince1970("2000-03-01"), 11017.0);
    EXPECT_EQ(daysSince1970("2024/3/17"), 19799.0);
    EXPECT_EQ(daysSince1970("1900-03-01"), -25508.0);
    EXPECT_EQ(daysSince1970("0000-01-01"), -719528.0);
    EXPECT_EQ(daysSince1970("9999-12-31"), 2932896.0);
    EXPECT_EQ(daysSince1970("2023-02-29"), std::nullopt);
}

TEST(Dates, CountPartsOfADay) {
    EXPECT_EQ(daysSince1970("1970-01-01T06:00"), 0.25);
    EXPECT_EQ(daysSince1970("1970-01-02 24:00"), 2.0);
    EXPECT_DOUBLE_EQ(*daysSince1970("19700101T00:00:43.2"), 0.0005);
    EXPECT_EQ(daysSince1970("1970-01-01T06:00+06:00"), 0.0);
    EXPECT_EQ(daysSince1970("1970-01-01T06:00-0600"), 0.5);
    EXPECT_EQ(daysSince1970("1970-01-01T06:00Z"), 0.25);
    EXPECT_EQ(daysSince1970("1970-01-01T06:00 PM"), std::nullopt);
}
