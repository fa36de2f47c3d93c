#include <tests/analysis/pictures/ParsedPicture.h>
#include <tests/analysis/pictures/every_picture.h>
#include <tests/analysis/pictures/sample_figures.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <set>
#include <sstream>

// What is true of all pictures.

using lv::test::AllFigures;
using lv::test::Element;
using lv::test::everyPicture;
using lv::test::NamedPicture;
using lv::test::ParsedPicture;

namespace {

constexpr std::size_t mostBytes = 60000;

const std::vector<double> extremes{std::numeric_limits<double>::quiet_NaN(),
                                   std::numeric_limits<double>::infinity(),
                                   -std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::max(),
                                   std::numeric_limits<double>::lowest(),
                                   std::numeric_limits<double>::denorm_min(),
                                   1e15,
                                   -1,
                                   0};

void expectInside(const ParsedPicture& picture, const std::string& name) {
    const double width = picture.root().number("width");
    const double height = picture.root().number("height");
    for (const Element& element : picture.elements()) {
        for (const auto& point : element.points()) {
            EXPECT_TRUE(point.x >= 0 && point.x <= width && point.y >= 0 && point.y <= height)
                << name << ": " << element.name << " at " << point.x << ", " << point.y;
        }
    }
}

void expectSound(const AllFigures& figures) {
    for (const NamedPicture& picture : everyPicture(figures)) {
        EXPECT_LT(picture.text.size(), mostBytes) << picture.name;
        EXPECT_EQ(picture.text.find("nan"), std::string::npos) << picture.name;
        expectInside(ParsedPicture(picture.text), picture.name);
    }
}

/// The greatest number of digits after a point.
std::size_t mostDigits(const std::string& text) {
    std::size_t most = 0;
    for (std::size_t at = text.find('.'); at != std::string::npos; at = text.find('.', at + 1)) {
        const std::size_t end = std::min(text.find_first_not_of("0123456789", at + 1), text.size());
        most = std::max(most, end - at - 1);
    }
    return most;
}

AllFigures nothing() {
    return {};
}

}  // namespace

TEST(Pictures, OfASampleAreValid) {
    expectSound(lv::test::sampleFigures());
}

TEST(Pictures, WithoutDataAreValidAndSayWhy) {
    expectSound(nothing());
    for (const NamedPicture& picture : everyPicture(nothing())) {
        EXPECT_TRUE(ParsedPicture(picture.text).says("Nothing to show: ")) << picture.name;
    }
}

TEST(Pictures, OfOneOrTwoValuesAreValid) {
    expectSound(lv::test::manyFigures(1));
    expectSound(lv::test::manyFigures(2));
}

TEST(Pictures, OfManyValuesAreValidAndSmall) {
    expectSound(lv::test::manyFigures(1024));
    expectSound(lv::test::manyFigures(10000));
}

TEST(Pictures, OfExtremeNumbersAreValid) {
    for (const double number : extremes) {
        SCOPED_TRACE(number);
        expectSound(lv::test::figuresOf(number));
    }
}

TEST(Pictures, OfUnusualTextsAreValid) {
    const std::vector<std::string> texts{"<script>alert('1 & \"2\"')</script>",
                                         std::string(10000, '<'),
                                         std::string(10000, ' '),
                                         "\xFF\xFE\x01\x7F",
                                         "]]>",
                                         "\xEF\xBF\xBF",
                                         "a\xE2\x80\xAE"
                                         "b"};
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 40));
        expectSound(lv::test::figuresNamed(text));
    }
}

TEST(Pictures, ShortenNamesAndKeepThemInTheTitle) {
    const std::string name = "Mode " + std::string(150, 'm') + " end";
    for (const NamedPicture& picture : everyPicture(lv::test::figuresNamed(name))) {
        const ParsedPicture parsed(picture.text);
        for (const Element& text : parsed.all("text")) {
            EXPECT_LT(text.text.size(), 140U) << picture.name;
        }
    }
    AllFigures figures = lv::test::sampleFigures();
    figures.mode.name = name;
    const ParsedPicture parsed(everyPicture(figures)[0].text);
    EXPECT_NE(parsed.all("title").front().text.find(name), std::string::npos);
}

TEST(Pictures, AreTheSameEachTime) {
    const auto first = everyPicture(lv::test::sampleFigures());
    const auto second = everyPicture(lv::test::sampleFigures());
    for (std::size_t index = 0; index < first.size(); ++index) {
        EXPECT_EQ(first[index].text, second[index].text);
    }
}

TEST(Pictures, HaveTitleAndDescriptionForScreenReaders) {
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures(), {"part-7", true})) {
        const ParsedPicture parsed(picture.text);
        EXPECT_EQ(parsed.root().attributes.at("role"), "img");
        EXPECT_EQ(parsed.elements()[1].name, "title");  // the first child is the name, by SVG-AAM
        EXPECT_NE(parsed.elements()[1].text, "");
        EXPECT_EQ(parsed.elements()[2].name, "desc");
        EXPECT_THAT(parsed.only("desc").text, testing::Contains(testing::AllOf(testing::Ge('0'), testing::Le('9'))))
            << picture.name;
    }
}

TEST(Pictures, HaveIdsThatBeginWithTheirsAndEachOnce) {
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures(), {"part-7", true})) {
        std::set<std::string> ids;
        const ParsedPicture parsed(picture.text);
        for (const Element& element : parsed.elements()) {
            const auto id = element.attributes.find("id");
            if (id != element.attributes.end()) {
                EXPECT_EQ(id->second.rfind("part-7-", 0), 0U) << id->second;
                EXPECT_TRUE(ids.insert(id->second).second) << id->second;
            }
        }
    }
}

TEST(Pictures, BringTheirStyleWhenAsked) {
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures())) {
        EXPECT_EQ(ParsedPicture(picture.text).only("style").text, lv::analysis::pictureStyle());
    }
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures(), {"part", false})) {
        EXPECT_TRUE(ParsedPicture(picture.text).all("style").empty());
    }
}

TEST(Pictures, HaveTheSizeOfTheirViewBox) {
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures())) {
        const Element root = ParsedPicture(picture.text).root();
        EXPECT_EQ(root.attributes.at("viewBox"),
                  "0,0," + root.attributes.at("width") + ',' + root.attributes.at("height"));
    }
}

TEST(Pictures, HaveNoCoordinateWithMoreThanOneDigit) {
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures())) {
        const ParsedPicture parsed(picture.text);
        for (const Element& element : parsed.elements()) {
            for (const std::string attribute : {"x", "y", "width", "height", "points", "d", "cx", "cy"}) {
                const auto found = element.attributes.find(attribute);
                EXPECT_LE(found == element.attributes.end() ? 0U : mostDigits(found->second), 1U) << picture.name;
            }
        }
    }
}

TEST(Pictures, UseOnlyClassesOfTheStyleSheet) {
    const std::string sheet = lv::analysis::pictureStyle();
    for (const NamedPicture& picture : everyPicture(lv::test::sampleFigures())) {
        const ParsedPicture parsed(picture.text);
        for (const Element& element : parsed.elements()) {
            const auto found = element.attributes.find("class");
            std::istringstream classes(found == element.attributes.end() ? "" : found->second);
            for (std::string name; classes >> name;) {
                EXPECT_TRUE(name == "picture" || sheet.find('.' + name) != std::string::npos) << name;
            }
        }
    }
}
