#include <tests/support/markup.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/BasicData.h>

#include <limits>
#include <numeric>
#include <string>
#include <vector>

namespace lv::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Stored = std::vector<unsigned int>;

struct WhitePoint {
    const char* element;
    property<Stored> BasicData::*stored;
    colour (BasicData::*get)() const;
    void (BasicData::*set)(const colour&);
};

Stored numbersFromOne(std::size_t count) {
    Stored numbers(count);
    std::iota(numbers.begin(), numbers.end(), 1U);
    return numbers;
}

class WhitePointTest : public ::testing::TestWithParam<WhitePoint> {
protected:
    [[nodiscard]] static std::string element(const std::string& text) {
        const std::string name = GetParam().element;
        return '<' + name + '>' + text + "</" + name + '>';
    }

    [[nodiscard]] static std::string written(const Stored& numbers) {
        return R"(<BasicData Version="3" MinorVersion="0">)" + element(arrayText(numbers)) + "</BasicData>";
    }

    [[nodiscard]] static Stored storedFrom(double X, double Y, double Z) {
        colour white;
        white.X = X;
        white.Y = Y;
        white.Z = Z;
        BasicData record;
        (record.*GetParam().set)(white);
        EXPECT_TRUE((record.*GetParam().stored).hasValue);
        return (record.*GetParam().stored).value;
    }

    [[nodiscard]] static property<Stored> readOver(const property<Stored>& earlier, const std::string& children) {
        BasicData record;
        record.*GetParam().stored = earlier;
        EXPECT_TRUE(record.parseXMLString(documentOf<BasicData>(children)));
        return record.*GetParam().stored;
    }
};

INSTANTIATE_TEST_SUITE_P(
    BasicData, WhitePointTest,
    ::testing::Values(WhitePoint{"CorrelationTargetWhite", &BasicData::correlationTargetWhite,
                                 &BasicData::correlationTargetWhite_x, &BasicData::correlationTargetWhite_x},
                      WhitePoint{"JustCalibratedWhite", &BasicData::justCalibratedWhite,
                                 &BasicData::justCalibratedWhite_x, &BasicData::justCalibratedWhite_x}),
    [](const auto& tested) { return std::string(tested.param.element); });

TEST(BasicData, CorrelationTargetWhiteOfTwoValuesParsesButIsNotWrittenBackAndReadsAsZeros) {
    const auto record =
        parsed<BasicData>("<BasicData><CorrelationTargetWhite>1|2</CorrelationTargetWhite></BasicData>");
    EXPECT_EQ(record.correlationTargetWhite, (property<Stored>{{1, 2}, true}));
    EXPECT_EQ(compact(record), compact(BasicData()));
    EXPECT_EQ(describe(record.correlationTargetWhite_x()), describe(colour()));
}

TEST(BasicData, JustCalibratedWhiteWithAYOfMinus1StoresZeroForY) {
    colour white;
    white.X = 1.0;
    white.Y = -1.0;
    white.Z = 2.0;
    BasicData record;
    record.justCalibratedWhite_x(white);
    EXPECT_EQ(record.justCalibratedWhite, (property<Stored>{{1000000, 0, 2000000}, true}));
}

TEST(BasicData, CorrelationTargetWhiteWithAnXOfMinus07StoresZero) {
    colour white;
    white.X = -0.7;
    BasicData record;
    record.correlationTargetWhite_x(white);
    EXPECT_EQ(record.correlationTargetWhite, (property<Stored>{{0, 0, 0}, true}));
}

TEST_P(WhitePointTest, GetterDividesByAMillionAndFillsNothingElseRegardlessOfTheFlag) {
    for (const bool flag : {false, true}) {
        BasicData record = filled<BasicData>();
        record.*GetParam().stored = {{95047000, 4294967295U, 1}, flag};
        colour expected;
        expected.X = 95.047;
        expected.Y = 4294.967295;
        expected.Z = 0.000001;
        EXPECT_EQ(describe((record.*GetParam().get)()), describe(expected));
    }
}

TEST_P(WhitePointTest, FewerThanThreeValuesReadAsAnAllZeroColourRegardlessOfTheFlag) {
    for (const std::size_t count : {0U, 1U, 2U}) {
        for (const bool flag : {false, true}) {
            BasicData record = filled<BasicData>();
            record.*GetParam().stored = {numbersFromOne(count), flag};
            EXPECT_EQ(describe((record.*GetParam().get)()), describe(colour())) << count;
        }
    }
}

TEST_P(WhitePointTest, GetterIgnoresValuesAfterTheThird) {
    BasicData record;
    (record.*GetParam().stored).set({1000000, 2000000, 3000000, 4000000, 5000000});
    colour expected;
    expected.X = 1.0;
    expected.Y = 2.0;
    expected.Z = 3.0;
    EXPECT_EQ(describe((record.*GetParam().get)()), describe(expected));
}

TEST_P(WhitePointTest, SetterReplacesTheVectorSetsTheFlagAndTouchesNothingElse) {
    for (const Stored& earlier : {Stored{}, Stored{9}, Stored{9, 9, 9, 9, 9}}) {
        BasicData record = filled<BasicData>();
        BasicData expected = filled<BasicData>();
        record.*GetParam().stored = {earlier, false};
        (record.*GetParam().set)(filled<colour>());
        (expected.*GetParam().stored).set({180000, 190000, 200000});
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST_P(WhitePointTest, SetterTimesAMillionAddsOneHalfAndTruncates) {
    EXPECT_EQ(storedFrom(95.047, 100.0, 108.883), (Stored{95047000, 100000000, 108883000}));
    EXPECT_EQ(storedFrom(0.49e-6, 0.51e-6, 1.49e-6), (Stored{0, 1, 1}));
    EXPECT_EQ(storedFrom(0.0000005, 0.0, 1.0000005), (Stored{1, 0, 1000001}));
}

TEST_P(WhitePointTest, SetterStoresNegativeValuesAsZero) {
    EXPECT_EQ(storedFrom(-0.7, -1.0, -0.0), (Stored{0, 0, 0}));
    EXPECT_EQ(storedFrom(-0.0000012, -5000.0, -1e300), (Stored{0, 0, 0}));
}

TEST_P(WhitePointTest, SetterKeepsTheLow32Bits) {
    EXPECT_EQ(storedFrom(4294.967295, 4294.967296, 4295.0), (Stored{4294967295U, 0, 32704}));
}

TEST_P(WhitePointTest, SetterStoresZeroForValuesBeyond64Bits) {
    EXPECT_EQ(storedFrom(notANumber, infinity, -infinity), (Stored{0, 0, 0}));
    EXPECT_EQ(storedFrom(1e300, 1e13, -1e13), (Stored{0, 0, 0}));
}

TEST_P(WhitePointTest, ThreeValuesAreWrittenRegardlessOfTheFlagAndOtherCountsAreNot) {
    for (std::size_t count = 0; count <= 6; ++count) {
        for (const bool flag : {false, true}) {
            BasicData record;
            record.*GetParam().stored = {numbersFromOne(count), flag};
            EXPECT_EQ(compact(record), count == 3 ? written(numbersFromOne(count)) : compact(BasicData()))
                << count << ' ' << flag;
        }
    }
}

TEST_P(WhitePointTest, AnyNumberOfValuesIsReadAndSetsTheFlagAndNothingElse) {
    for (std::size_t count = 1; count <= 6; ++count) {
        BasicData expected;
        (expected.*GetParam().stored).set(numbersFromOne(count));
        const std::string document = documentOf<BasicData>(element(arrayText(numbersFromOne(count))));
        EXPECT_EQ(describe(parsed<BasicData>(document)), describe(expected));
    }
}

TEST_P(WhitePointTest, MissingOrEmptyElementClearsTheFlagAndKeepsTheValuesWhichAreThenStillWritten) {
    for (const std::string& children : {std::string(), element(""), element("<b>1|2|3</b>")}) {
        EXPECT_EQ(readOver({{7, 8, 9}, true}, children), (property<Stored>{{7, 8, 9}, false})) << children;
        BasicData record;
        record.*GetParam().stored = {{7, 8, 9}, true};
        ASSERT_TRUE(record.parseXMLString(documentOf<BasicData>(children)));
        EXPECT_EQ(compact(record), written({7, 8, 9}));
    }
}

TEST_P(WhitePointTest, EmptyPiecesAreNotCountedAndSeparatorsAloneLeaveNothing) {
    EXPECT_EQ(readOver({{7, 8, 9}, false}, element("|1||2|3|")), (property<Stored>{{1, 2, 3}, true}));
    EXPECT_EQ(readOver({{7, 8, 9}, false}, element("||")), (property<Stored>{{}, true}));
}

TEST_P(WhitePointTest, PiecesAreReadAsUnsignedNumbersWithoutEverFailing) {
    EXPECT_EQ(readOver({}, element("-1|99999999999|x")), (property<Stored>{{4294967295U, 4294967295U, 0}, true}));
    EXPECT_EQ(readOver({}, element("1,2,3")), (property<Stored>{{1}, true}));
}

}  // namespace
}  // namespace lv::test
