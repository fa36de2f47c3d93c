#include <lvdata/analysis/snake_case.h>

#include <gtest/gtest.h>

using lv::analysis::snakeCase;

TEST(SnakeCase, BeginsAWordWithACapitalAfterASmallLetter) {
    EXPECT_EQ(snakeCase("MonitorConfiguration"), "monitor_configuration");
    EXPECT_EQ(snakeCase("executedDate"), "executed_date");
}

TEST(SnakeCase, KeepsCapitalsTogether) {
    EXPECT_EQ(snakeCase("UUID"), "uuid");
    EXPECT_EQ(snakeCase("MeasuredXYZ"), "measured_xyz");
    EXPECT_EQ(snakeCase("HLGSystemGamma"), "hlg_system_gamma");
    EXPECT_EQ(snakeCase("LStar"), "l_star");
}

TEST(SnakeCase, LeavesDigitsWithTheWordBeforeThem) {
    EXPECT_EQ(snakeCase("Asset1"), "asset1");
    EXPECT_EQ(snakeCase("Lut24"), "lut24");
    EXPECT_EQ(snakeCase("WhitePointV7"), "white_point_v7");
    EXPECT_EQ(snakeCase("Limited109Setting"), "limited109_setting");
    EXPECT_EQ(snakeCase("Create3DLut"), "create3d_lut");
}

TEST(SnakeCase, LeavesOtherCharacters) {
    EXPECT_EQ(snakeCase(""), "");
    EXPECT_EQ(snakeCase("x"), "x");
    EXPECT_EQ(snakeCase("a-b.c"), "a-b.c");
}
