#include <lvdata/analysis/pictures/pictures.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

// Colours can be read: the contrast of WCAG 2.2 (https://www.w3.org/TR/WCAG22/#dfn-contrast-ratio).

namespace {

const std::string sheet = lv::analysis::pictureStyle();
const std::size_t dark = sheet.find("prefers-color-scheme:dark");

double part(const std::string& colour, std::size_t index) {
    const double value = std::stoi(colour.substr(1 + 2 * index, 2), nullptr, 16) / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const std::string& colour) {
    return 0.2126 * part(colour, 0) + 0.7152 * part(colour, 1) + 0.0722 * part(colour, 2);
}

double contrast(const std::string& left, const std::string& right) {
    const double one = luminance(left) + 0.05;
    const double other = luminance(right) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// The colour that follows a text, from a position on.
std::string colourAfter(const std::string& text, std::size_t from = 0) {
    const std::size_t at = sheet.find(text, from);
    EXPECT_NE(at, std::string::npos) << text;
    return sheet.substr(at + text.size(), 7);
}

void expectContrast(const std::string& colour, double least) {
    const std::string property = "--lv-" + colour + ':';
    EXPECT_GE(contrast(colourAfter(property), colourAfter("--lv-paper:")), least) << colour << ", light";
    EXPECT_GE(contrast(colourAfter(property, dark), colourAfter("--lv-paper:", dark)), least) << colour << ", dark";
}

}  // namespace

TEST(PictureStyle, HasTextsThatCanBeRead) {
    for (const std::string colour : {"ink", "muted"}) {
        expectContrast(colour, 4.5);
    }
}

TEST(PictureStyle, HasLinesThatCanBeSeen) {
    for (const std::string colour : {"blue", "red", "green", "purple", "orange", "axis"}) {
        expectContrast(colour, 3);
    }
}

TEST(PictureStyle, HasTextsOnEachStepOfTheRamp) {
    for (int step = 0; step < 9; ++step) {
        const std::string name = ".lv-r" + std::to_string(step);
        EXPECT_GE(contrast(colourAfter(name + "{fill:"), colourAfter(name + "t{fill:")), 4.5) << step;
    }
}

TEST(PictureStyle, HasARampFromDarkToLight) {
    for (int step = 1; step < 9; ++step) {
        EXPECT_GT(luminance(colourAfter(".lv-r" + std::to_string(step) + "{fill:")),
                  luminance(colourAfter(".lv-r" + std::to_string(step - 1) + "{fill:")));
    }
}

TEST(PictureStyle, IsDarkOnScreensOnly) {
    EXPECT_NE(sheet.find("@media screen and (prefers-color-scheme:dark)"), std::string::npos);
    EXPECT_EQ(sheet.find("@media"), sheet.rfind("@media"));
}

TEST(PictureStyle, HasAColourBesideEachCustomProperty) {
    EXPECT_NE(sheet.find("fill:#ffffff;fill:var(--lv-paper)"), std::string::npos);
    EXPECT_EQ(sheet.find('@', sheet.find("@media") + 1), std::string::npos);
}

TEST(PictureStyle, HasNoTextBelowElevenPixels) {
    for (std::size_t at = sheet.find("font-size:"); at != std::string::npos; at = sheet.find("font-size:", at + 1)) {
        EXPECT_GE(std::stoi(sheet.substr(at + 10, 2)), 11);
    }
}
