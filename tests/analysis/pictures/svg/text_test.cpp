#include <lvdata/analysis/pictures/svg/text.h>

#include <lvdata/analysis/utf8.h>

#include <gtest/gtest.h>

#include <limits>

using namespace lv::analysis::svg;  // NOLINT(*-using-namespace): what is tested

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(CoordinateText, HasOneDigitAndNoZeroAtItsEnd) {
    EXPECT_EQ(coordinateText(1.26), "1.3");
    EXPECT_EQ(coordinateText(1.2), "1.2");
    EXPECT_EQ(coordinateText(100), "100");
    EXPECT_EQ(coordinateText(-0.01), "0");
    EXPECT_EQ(coordinateText(-2.5), "-2.5");
}

TEST(CoordinateText, IsANumberForAnyValue) {
    EXPECT_EQ(coordinateText(notANumber), "0");
    EXPECT_EQ(coordinateText(infinity), "99999");
    EXPECT_EQ(coordinateText(-1e300), "-99999");
}

TEST(ValueText, HasAsManyDigitsAsAsked) {
    EXPECT_EQ(valueText(1.5, 2), "1.50");
    EXPECT_EQ(valueText(123456789, 1), "123456789.0");
}

TEST(ValueText, HasAnExponentForLongNumbers) {
    EXPECT_EQ(valueText(1234567890123.0, 2), "1.23e12");
    EXPECT_EQ(valueText(-1e300, 2), "-1e300");
    EXPECT_EQ(valueText(9.999e20, 2), "1e21");
    EXPECT_EQ(valueText(std::numeric_limits<double>::max(), 2), "1.8e308");
}

TEST(ValueText, SaysWhatIsNotANumber) {
    EXPECT_EQ(valueText(notANumber, 2), "not a number");
    EXPECT_EQ(valueText(infinity, 2), "infinite");
    EXPECT_EQ(valueText(-infinity, 2), "-infinite");
}

TEST(Cleaned, HasOnlyWhatXMLCanCarry) {
    EXPECT_EQ(cleaned("a\x01"
                      "b\n"),
              "a\\x01b\\x0A");
    EXPECT_EQ(cleaned("\xFF"), "\\xFF");
    EXPECT_EQ(cleaned("x\xEF\xBF\xBE\xEF\xBF\xBFy"), "x\xEF\xBF\xBD\xEF\xBF\xBDy");
    EXPECT_EQ(cleaned("Δu′v′ 色"), "Δu′v′ 色");
}

TEST(Escaped, HasTheEntities) {
    EXPECT_EQ(escaped("<a href=\"x\" b='&'>"), "&lt;a href=&quot;x&quot; b=&apos;&amp;&apos;&gt;");
}

TEST(Shortened, LeavesWhatFits) {
    EXPECT_EQ(shortened("Photo", 100, 12), "Photo");
    EXPECT_EQ(shortened("", 0, 12), "");
}

TEST(Shortened, FitsWithTheEllipsis) {
    for (const double width : {20.0, 57.0, 133.0}) {
        const std::string text = shortened("A long name of a mode, Δ色色色色", width, 12);
        EXPECT_LE(textWidth(text, 12), width);
        EXPECT_EQ(text.substr(text.size() - 3), "…");
        EXPECT_TRUE(lv::analysis::isUTF8(text));
    }
}

TEST(TextWidth, GrowsWithTheFontAndTheText) {
    EXPECT_DOUBLE_EQ(textWidth("abc", 24), 2 * textWidth("abc", 12));
    EXPECT_GT(textWidth("mmm", 12), textWidth("iii", 12));
    EXPECT_DOUBLE_EQ(textWidth("色", 12), 12);
}

TEST(Quotable, IsShortAndWhole) {
    EXPECT_EQ(quotable("<Photo>"), "<Photo>");
    const std::string text = quotable(std::string(10000, 'a'), 80);
    EXPECT_GT(text.size(), 70U);
    EXPECT_LT(text.size(), 90U);
    std::string many;
    for (int index = 0; index < 1000; ++index) {
        many += "色";
    }
    EXPECT_TRUE(lv::analysis::isUTF8(quotable(many)));
}
