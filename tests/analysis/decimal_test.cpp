#include <lvdata/analysis/decimal.h>

#include <gtest/gtest.h>

#include <limits>

namespace lv::analysis {
namespace {

std::string natural(const std::string& stored, std::size_t decimals) {
    DecimalBuffer buffer{};
    return std::string(naturalText(stored, decimals, buffer));
}

/// As text; "none" when it is out of range.
std::string stored(const std::string& natural, std::size_t decimals, StoredRange range = signedRange) {
    const auto number = storedNumber(natural, decimals, range);
    return number ? std::to_string(*number) : "none";
}

}  // namespace

TEST(Decimal, KnowsTheDigitsOfAFactor) {
    EXPECT_EQ(decimalsOf(1), 0U);
    EXPECT_EQ(decimalsOf(100), 2U);
    EXPECT_EQ(decimalsOf(1000000000), 9U);
    EXPECT_EQ(decimalsOf(255), 0U);
    EXPECT_EQ(decimalsOf(65535), 0U);
    EXPECT_EQ(decimalsOf(16777215), 0U);
    EXPECT_EQ(decimalsOf(20), 0U);
}

TEST(Decimal, MovesThePointInTheDigits) {
    EXPECT_EQ(natural("220", 0), "220");
    EXPECT_EQ(natural("220", 2), "2.2");
    EXPECT_EQ(natural("200", 2), "2");
    EXPECT_EQ(natural("-700000", 6), "-0.7");
    EXPECT_EQ(natural("0", 6), "0");
    EXPECT_EQ(natural("1", 9), "0.000000001");
    EXPECT_EQ(natural("4294967295", 9), "4.294967295");
    EXPECT_EQ(natural("-2147483648", 6), "-2147.483648");
    EXPECT_EQ(natural("1000000", 6), "1");
    EXPECT_EQ(natural("10", 2), "0.1");
}

TEST(Decimal, RoundsToTheNearestStep) {
    EXPECT_EQ(stored("2.2", 2), "220");
    EXPECT_EQ(stored("-0.7", 6), "-700000");
    EXPECT_EQ(stored("0.0000004", 6), "0");
    EXPECT_EQ(stored("0.0000005", 6), "1");
    EXPECT_EQ(stored("-0.0000005", 6), "-1");
    EXPECT_EQ(stored("0.00000049999999999999999999999", 6), "0");
    EXPECT_EQ(stored("127.5", 0), "128");
    EXPECT_EQ(stored("0.5", 0), "1");
    EXPECT_EQ(stored("0.05", 0), "0");
    EXPECT_EQ(stored("9.995", 2), "1000");
    EXPECT_EQ(stored("-0.0", 2, unsignedRange), "0");
    EXPECT_EQ(stored("-0.4", 0, unsignedRange), "0");
}

TEST(Decimal, TakesExponents) {
    EXPECT_EQ(stored("1e3", 0), "1000");
    EXPECT_EQ(stored("22E-1", 2), "220");
    EXPECT_EQ(stored("0.00022e+4", 2), "220");
    EXPECT_EQ(stored("1e-999999999999999999999", 6), "0");
    EXPECT_EQ(stored("1e999999999999999999999", 0), "none");
    EXPECT_EQ(stored("0e999999999999999999999", 0), "0");
    EXPECT_EQ(stored("-5e-1", 0), "-1");
    EXPECT_EQ(stored("4e-1", 0), "0");
}

TEST(Decimal, KeepsToTheRange) {
    EXPECT_EQ(stored("4294967295", 0, unsignedRange), "4294967295");
    EXPECT_EQ(stored("4294967295.4", 0, unsignedRange), "4294967295");
    EXPECT_EQ(stored("4294967295.5", 0, unsignedRange), "none");
    EXPECT_EQ(stored("-1", 0, unsignedRange), "none");
    EXPECT_EQ(stored("2147.483647", 6), "2147483647");
    EXPECT_EQ(stored("2147.483648", 6), "none");
    EXPECT_EQ(stored("-2147.483648", 6), "-2147483648");
    EXPECT_EQ(stored("-2147.483649", 6), "none");
    EXPECT_EQ(stored("18446744073709551616", 0, unsignedRange), "none");
    EXPECT_EQ(stored("1000000000000000000000000", 0), "none");
}

TEST(Decimal, TakesThePointOfAnyLocale) {
    EXPECT_EQ(stored("2,2", 2), "220");
}

TEST(Decimal, ReadsWhatItWrites) {
    const auto range = [](std::int64_t number) {
        return number < 0 ? signedRange : unsignedRange;
    };
    for (std::size_t decimals = 0; decimals <= 9; ++decimals) {
        std::int64_t number = -2147483648LL;
        for (; number <= 4294967295; number += 1 + (number < 0 ? -number : number) / 3) {
            EXPECT_EQ(storedNumber(natural(std::to_string(number), decimals), decimals, range(number)), number);
        }
    }
}

TEST(Decimal, ReadsTheNearestDouble) {
    EXPECT_EQ(decimalNumber("0.1"), 0.1);
    EXPECT_EQ(decimalNumber("-12.5"), -12.5);
    EXPECT_EQ(decimalNumber(".5"), 0.5);
    EXPECT_EQ(decimalNumber("5."), 5.0);
    EXPECT_EQ(decimalNumber("007"), 7.0);
    EXPECT_EQ(decimalNumber("0.30000000000000004"), 0.30000000000000004);
    EXPECT_EQ(decimalNumber("9007199254740993"), 9007199254740992.0);  // half-way: to the even one
    EXPECT_EQ(decimalNumber("9007199254740993.00000000000000000000000000000000000001"), 9007199254740994.0);
    EXPECT_EQ(decimalNumber("1e23"), 1e23);
    EXPECT_EQ(decimalNumber("2.5E-3"), 0.0025);
    EXPECT_EQ(decimalNumber("25e+3"), 25000.0);
    EXPECT_EQ(decimalNumber("-0"), 0.0);
    EXPECT_EQ(decimalNumber("0e999999999999999999999"), 0.0);
}

TEST(Decimal, ReadsNumbersOfTheSizeOfADouble) {
    EXPECT_EQ(decimalNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(decimalNumber("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
    for (const std::string text : {"1e309", "-1e309", "1e-400", "-1e-400", "1e999999999999999999999"}) {
        EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
    }
}

TEST(Decimal, ReadsNoOtherText) {
    for (const std::string text :
         {"",    "-",    ".",   "-.",   "+1",  " 1",       "1 ",  "1,5",  "1.2.3", "1e",    "1e+",     "e5",
          ".e5", "1e5.", "--1", "0x10", "inf", "infinity", "nan", "-inf", "1f",    "1e1e1", "1\u00a0", "1'000"}) {
        EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
    }
    EXPECT_EQ(decimalNumber(std::string_view("1\0", 2)), std::nullopt);
}

}  // namespace lv::analysis
