#include <lvdata/xml/Limits.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace lv {
namespace {

/// Whether an attribute of that name is read, so that the next one is the second.
bool isAttribute(const std::string& name) {
    Limits limits;
    limits.attributes = 1;
    return findExcess("<a " + name + "='' b=''/>", limits).has_value();
}

TEST(LimitsNames, BeginWithALetterAColonAnUnderscoreOrAByteBeyondASCII) {
    for (const char first : std::string_view("azAZmM:_\x80\xFF")) {
        EXPECT_TRUE(isAttribute(std::string(1, first))) << first;
    }
}

TEST(LimitsNames, BeginWithNothingElse) {
    for (const char first : std::string_view("@[`{;^\x7F\x30\x39.-")) {
        EXPECT_FALSE(isAttribute(std::string(1, first))) << first;
    }
}

TEST(LimitsNames, ContinueWithDigitsPointsAndHyphens) {
    for (const char second : std::string_view("09.-5azAZ:_\x80\xFF")) {
        EXPECT_TRUE(isAttribute(std::string("c") + second)) << second;
    }
}

}  // namespace
}  // namespace lv
