#include "checked.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using lv::test::findingsIn;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

std::string table(const std::string& text) {
    return "<ProfileData>\n<RedTargetCurve Type=\"Lut\">" + text + "</RedTargetCurve></ProfileData>";
}

std::string coordinate(const std::string& name, int x, int y) {
    return '<' + name + "><x>" + std::to_string(x) + "</x><y>" + std::to_string(y) + "</y></" + name + '>';
}

std::string target(int x, int y) {
    return "<TargetSetting>\n<WhitePoint Type='Coordinate'><x>" + std::to_string(x) + "</x><y>" + std::to_string(y) +
           "</y></WhitePoint><Gamut>" + coordinate("Red", 6400, 3300) + coordinate("Green", 3000, 6000) +
           coordinate("Blue", 1500, 600) + "</Gamut></TargetSetting>";
}

std::string dated(const std::string& text) {
    return "<CorrelationInfo>\n<CorrelationDate>" + text + "</CorrelationDate></CorrelationInfo>";
}

}  // namespace

TEST(Plausibility, IsCheckedForTables) {
    EXPECT_THAT(findingsIn(table("0|5|5|4294967295")), IsEmpty());
    EXPECT_THAT(findingsIn(table("0|5|4|3")), ElementsAre("402 line 2 /ProfileData/RedTargetCurve: entry 3 is 4, less "
                                                          "than the one before it, 5"));
    EXPECT_THAT(findingsIn(table("0|5|05|04")), testing::Contains(StartsWith("402 line 2")));
}

TEST(Plausibility, IsNotCheckedForFaultyTables) {
    EXPECT_THAT(findingsIn(table("0|5||6")), ElementsAre(StartsWith("108 ")));
    EXPECT_THAT(findingsIn(table("0|5|-1")), ElementsAre(StartsWith("103 ")));
    EXPECT_THAT(findingsIn(table("5|x")), ElementsAre(StartsWith("101 ")));
}

TEST(Plausibility, IsCheckedForChromaticities) {
    const auto white = [](int x, int y) {
        return findingsIn("<TargetSetting>\n<WhitePoint Type='Coordinate'><x>" + std::to_string(x) + "</x><y>" +
                          std::to_string(y) + "</y></WhitePoint></TargetSetting>");
    };
    EXPECT_THAT(white(4000, 6000), IsEmpty());
    EXPECT_THAT(white(4000, 6001), ElementsAre("401 line 2 /TargetSetting/WhitePoint: the sum of x and y is above 1"));
}

TEST(Plausibility, IsCheckedForWhites) {
    EXPECT_THAT(findingsIn(target(3127, 3290)), IsEmpty());
    EXPECT_THAT(findingsIn(target(6400, 3300)), IsEmpty()) << "on a corner";
    EXPECT_THAT(findingsIn(target(0, 0)), IsEmpty()) << "not set";
    EXPECT_THAT(findingsIn(target(1000, 1000)),
                ElementsAre("406 line 2 /TargetSetting: the white point is outside the triangle of the primaries"));
}

TEST(Plausibility, IsCheckedForIndexes) {
    const auto row = [](const std::string& index) {
        return "<ColorMode><Index>" + index + "</Index></ColorMode>\n";
    };
    const auto findings = [&](const std::string& last) {
        return findingsIn("<ColorModeSettings>\n" + row("1") + row("2") + row(last) + "</ColorModeSettings>");
    };
    EXPECT_THAT(findings("3"), IsEmpty());
    EXPECT_THAT(findings("1"), ElementsAre("403 line 4 /ColorModeSettings: index 1 is already used in line 2"));
    EXPECT_THAT(findings("01"), testing::Contains(StartsWith("403 line 4 ")));
}

TEST(Plausibility, IsCheckedForMaps) {
    const auto maps = [](const std::string& brightness) {
        return findingsIn("<CandelaMap><Uniformity><Values>1|2|3</Values></Uniformity><Brightness>\n<Values>" +
                          brightness + "</Values></Brightness></CandelaMap>");
    };
    EXPECT_THAT(maps("4|5|6"), IsEmpty());
    EXPECT_THAT(maps("4|5"), ElementsAre("404 line 2 /CandelaMap: Brightness has 2 entries, and Uniformity 3"));
}

TEST(Plausibility, IsCheckedForDates) {
    EXPECT_THAT(findingsIn(dated("2024-03-17T09:31:00Z")), IsEmpty());
    EXPECT_THAT(findingsIn(dated("")), IsEmpty());
    EXPECT_THAT(findingsIn(dated("17.3.2024")),
                ElementsAre("405 line 2 /CorrelationInfo/CorrelationDate: \"17.3.2024\" "
                            "is not a date with the year first"));
}
