#include <lvdata/core/Description.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using Kind = Condition::Kind;

Condition conditionOn(Kind kind, std::vector<std::string> subjects) {
    Condition condition;
    condition.kind = kind;
    condition.subjects = std::move(subjects);
    return condition;
}

Condition comparison(Kind kind, std::vector<std::string> texts) {
    Condition condition = conditionOn(kind, {"../@Type"});
    condition.texts = std::move(texts);
    return condition;
}

Condition entries(std::size_t count, std::vector<std::string> subjects) {
    Condition condition = conditionOn(Kind::haveEntries, std::move(subjects));
    condition.entries = count;
    return condition;
}

Condition anyOf(std::vector<Condition> alternatives) {
    Condition condition = conditionOn(Kind::anyOf, {});
    condition.alternatives = std::move(alternatives);
    return condition;
}

TEST(Condition, ComparesWithTexts) {
    EXPECT_EQ(comparison(Kind::oneOf, {"Value"}).toString(), R"(../@Type is "Value")");
    EXPECT_EQ(comparison(Kind::oneOf, {"PQ", "HLG"}).toString(), R"(../@Type is "PQ" or "HLG")");
    EXPECT_EQ(comparison(Kind::oneOf, {"Formula", "Lut", "LStar"}).toString(),
              R"(../@Type is "Formula", "Lut" or "LStar")");
}

TEST(Condition, ComparesWithNone) {
    EXPECT_EQ(comparison(Kind::noneOf, {"Value"}).toString(), R"(../@Type is not "Value")");
    EXPECT_EQ(comparison(Kind::noneOf, {"PQ", "HLG"}).toString(), R"(../@Type is neither "PQ" nor "HLG")");
}

TEST(Condition, QuotesNoNumbers) {
    EXPECT_EQ(comparison(Kind::oneOf, {"3", "31"}).toString(), "../@Type is 3 or 31");
    EXPECT_EQ(comparison(Kind::oneOf, {"", "1a"}).toString(), R"(../@Type is "" or "1a")");
}

TEST(Condition, AsksForAllSubjects) {
    EXPECT_EQ(conditionOn(Kind::isSet, {"Type"}).toString(), "Type is set");
    EXPECT_EQ(conditionOn(Kind::isSet, {"Red", "Green", "Blue"}).toString(), "Red, Green and Blue are set");
    EXPECT_EQ(conditionOn(Kind::notEmpty, {"Name"}).toString(), "Name is not empty");
    EXPECT_EQ(conditionOn(Kind::notEmpty, {"Name", "Date"}).toString(), "Name and Date are not empty");
}

TEST(Condition, AsksForOneOfTheSubjects) {
    EXPECT_EQ(conditionOn(Kind::exists, {"Red"}).toString(), "Red exists");
    EXPECT_EQ(conditionOn(Kind::exists, {"Red", "Green", "Blue"}).toString(), "Red, Green or Blue exists");
    EXPECT_EQ(conditionOn(Kind::hasText, {"red", "green"}).toString(), "red or green has text");
}

TEST(Condition, CountsEntries) {
    EXPECT_EQ(entries(3, {"RGB"}).toString(), "RGB has 3 entries");
    EXPECT_EQ(entries(1, {"RGB"}).toString(), "RGB has 1 entry");
    EXPECT_EQ(entries(3, {"Red", "Green"}).toString(), "Red and Green each have 3 entries");
}

TEST(Condition, JoinsAlternatives) {
    EXPECT_EQ(anyOf({entries(3, {"RGB"}), entries(4, {"CMYK"}), entries(3, {"XYZ"})}).toString(),
              "RGB has 3 entries, CMYK has 4 entries or XYZ has 3 entries");
    EXPECT_EQ(anyOf({conditionOn(Kind::isSet, {"Red", "Green"}), conditionOn(Kind::isSet, {"Blue"})}).toString(),
              "Red and Green are set or Blue is set");
    EXPECT_EQ(anyOf({conditionOn(Kind::exists, {"Red", "Green"}), conditionOn(Kind::exists, {"Blue"})}).toString(),
              "Red or Green exists or Blue exists");
    EXPECT_EQ(anyOf({}).toString(), "");
}

TEST(Condition, SaysOnceWhatAlternativesShare) {
    EXPECT_EQ(anyOf({conditionOn(Kind::isSet, {"hue"}), conditionOn(Kind::isSet, {"saturation"})}).toString(),
              "hue or saturation is set");
    EXPECT_EQ(anyOf({conditionOn(Kind::hlgSwitch, {}), conditionOn(Kind::hlgSwitch, {})}).toString(),
              "writeHLGSystemGamma is set in the record that is printed or "
              "writeHLGSystemGamma is set in the record that is printed");
}

TEST(Condition, SaysRules) {
    Condition condition = conditionOn(Kind::rule, {});
    condition.rule = "no coordinate is 0";
    EXPECT_EQ(condition.toString(), "no coordinate is 0");
    EXPECT_EQ(conditionOn(Kind::hlgSwitch, {}).toString(), "writeHLGSystemGamma is set in the record that is printed");
}

TEST(Condition, SaysEachRuleEvenWhenTheyAreAboutOneMember) {
    Condition one = conditionOn(Kind::rule, {"x"});
    one.rule = "x is odd";
    Condition other = conditionOn(Kind::rule, {"x"});
    other.rule = "x is a square";
    EXPECT_EQ(anyOf({one, other}).toString(), "x is odd or x is a square");
}

}  // namespace
}  // namespace lv
