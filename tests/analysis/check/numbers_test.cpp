#include <lvdata/analysis/check/numbers.h>
#include <lvdata/xml/lexical_cast.h>
#include <tests/differential/odd_texts.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using lv::lexical_cast;
using lv::analysis::judgeNumber;
using lv::analysis::NumberText;

namespace {

std::string writtenBack(const std::string& text, bool isSigned) {
    return isSigned ? std::to_string(lexical_cast<int>(text)) : std::to_string(lexical_cast<unsigned int>(text));
}

/// What must be so of a text that is judged in this way.
bool isTrueOf(NumberText judgement, const std::string& text, bool isSigned) {
    const std::string written = writtenBack(text, isSigned);
    switch (judgement) {
    case NumberText::canonical:
        return written == text;
    case NumberText::empty:
        return text.empty();
    case NumberText::noNumber:
        return written == "0" && written != text;
    case NumberText::outOfRange:
        return isSigned ? written == "2147483647" || written == "-2147483648" : written == "4294967295";
    case NumberText::negative:
        return !isSigned && text.find('-') != std::string::npos && written != "0";
    case NumberText::otherSpelling:
    case NumberText::restIgnored:
        return written != text;
    }
    return false;
}

void expectTrueJudgement(const std::string& text) {
    for (const bool isSigned : {false, true}) {
        EXPECT_TRUE(isTrueOf(judgeNumber(text, isSigned), text, isSigned))
            << '"' << text << "\", " << (isSigned ? "signed" : "unsigned") << ": judgement "
            << static_cast<int>(judgeNumber(text, isSigned)) << ", written as " << writtenBack(text, isSigned);
    }
}

/// Made of what numbers are made of, and of a little else.
std::string oddText(std::mt19937& random) {
    const std::vector<std::string> pieces{"0",  "1",  "9", "42", "2147483647", "4294967295", "-",    "+",  " ",
                                          "\t", "\n", "x", ".",  ",",          "|",          "\xA0", "e5", "0x"};
    std::string text;
    for (std::size_t count = random() % 5; count > 0; --count) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

}  // namespace

TEST(Numbers, AreCheckedAsTheyAreRead) {
    std::mt19937 random(20261122);
    for (int count = 0; count < 20'000; ++count) {
        expectTrueJudgement(oddText(random));
    }
    for (const std::string& text : differential::oddNumbers()) {
        expectTrueJudgement(text);
    }
}

TEST(Numbers, NearALimitAreCheckedAsTheyAreRead) {
    for (const std::int64_t limit : {0LL, 2147483647LL, -2147483648LL, 4294967295LL, -4294967295LL}) {
        for (std::int64_t number = limit - 3; number <= limit + 3; ++number) {
            expectTrueJudgement(std::to_string(number));
        }
    }
}

TEST(Numbers, UnsignedHaveTheirOwnLimits) {
    EXPECT_EQ(judgeNumber("4294967295", false), NumberText::canonical);
    EXPECT_EQ(judgeNumber("4294967296", false), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber("-1", false), NumberText::negative);
    EXPECT_EQ(judgeNumber("-4294967296", false), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber("-0", false), NumberText::otherSpelling);
}

TEST(Numbers, SignedHaveTheirOwnLimits) {
    EXPECT_EQ(judgeNumber("2147483647", true), NumberText::canonical);
    EXPECT_EQ(judgeNumber("2147483648", true), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber("-2147483648", true), NumberText::canonical);
    EXPECT_EQ(judgeNumber("-2147483649", true), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber("-0", true), NumberText::otherSpelling);
}

TEST(Numbers, AreCheckedInTheirContext) {
    EXPECT_EQ(judgeNumber("", false), NumberText::empty);
    EXPECT_EQ(judgeNumber(" ", false), NumberText::noNumber);
    EXPECT_EQ(judgeNumber("+", true), NumberText::noNumber);
    EXPECT_EQ(judgeNumber("- 1", true), NumberText::noNumber);
    EXPECT_EQ(judgeNumber("140,5", false), NumberText::restIgnored);
    EXPECT_EQ(judgeNumber("0x10", false), NumberText::restIgnored);
    EXPECT_EQ(judgeNumber("5 ", false), NumberText::otherSpelling);
    EXPECT_EQ(judgeNumber("007", false), NumberText::otherSpelling);
    EXPECT_EQ(judgeNumber("99999999999x", false), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber(std::string(1'000'000, '9'), true), NumberText::outOfRange);
    EXPECT_EQ(judgeNumber(std::string(1'000'000, '0'), true), NumberText::otherSpelling);
}
