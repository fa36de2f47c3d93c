#include <lvdata/analysis/figures/lines.h>

#include <tests/support/golden.h>

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using lv::analysis::Figure;
using lv::analysis::figureKeys;
using lv::analysis::FigureLine;
using lv::analysis::figureLines;
using lv::analysis::KnownUnits;
using lv::analysis::MapFigures;
using lv::analysis::ModeFigures;

FigureLine lineOf(const ModeFigures& mode, const std::string& key, const KnownUnits& known = {}) {
    for (const FigureLine& line : figureLines(mode, known)) {
        if (line.key == key) {
            return line;
        }
    }
    ADD_FAILURE() << key;
    return {};
}

/// Target, measured and difference as they are shown.
std::vector<std::string> textsOf(const FigureLine& line) {
    return {line.text(line.target), line.text(line.measured), line.text(line.difference)};
}

MapFigures mapOf(const char* name) {
    MapFigures map;
    map.name = name;
    return map;
}

/// "| `white_x` |  | 4 |", as the page has it.
std::string rowOf(const FigureLine& line) {
    return "| `" + line.key + "` | " + line.unit + " | " + std::to_string(line.decimals) + " |";
}

/// The lines of all figures; units that the user gives stand for themselves.
std::vector<FigureLine> allLines() {
    KnownUnits known;
    known.yUnit = "of Y";
    std::vector<FigureLine> lines = figureLines(ModeFigures(), known);
    for (const char* const name : {"Uniformity", "Brightness"}) {
        MapFigures map = mapOf(name);
        map.unit = "of the map";
        const std::vector<FigureLine> more = figureLines(map);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    return lines;
}

}  // namespace

using testing::ElementsAre;

TEST(FigureLines, AreThoseOfThePage) {
    const std::string page = lv::test::contentOf(std::string(LVDATA_DOCS_DIR) + "/figures.md");
    std::size_t position = 0;
    for (const FigureLine& line : allLines()) {
        const std::size_t found = page.find("\n" + rowOf(line), position);
        EXPECT_NE(found, std::string::npos) << "docs/figures.md lacks, in this order: " << rowOf(line);
        position = found == std::string::npos ? position : found + 1;
    }
    std::size_t rows = 0;
    for (std::size_t row = page.find("\n| `"); row < page.find("## Tone"); row = page.find("\n| `", row + 1)) {
        ++rows;
    }
    EXPECT_EQ(rows, allLines().size());
}

TEST(FigureLines, HaveUniqueKeys) {
    const std::vector<std::string>& keys = figureKeys();
    EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), keys.size());
    EXPECT_EQ(keys.size(), allLines().size());
    for (const FigureLine& line : allLines()) {
        EXPECT_EQ(line.key.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_"), std::string::npos) << line.key;
        EXPECT_FALSE(line.group.empty()) << line.key;
        EXPECT_FALSE(line.label.empty()) << line.key;
    }
}

TEST(FigureLines, HaveTheDifferenceOfTargetAndMeasured) {
    ModeFigures mode;
    mode.targetY = {120, ""};
    mode.measuredY = {118.2, ""};
    EXPECT_THAT(textsOf(lineOf(mode, "white_tristimulus_y")), ElementsAre("120.0000", "118.2000", "-1.8000"));
    EXPECT_THAT(textsOf(lineOf(mode, "white_tristimulus_y_deviation")), ElementsAre("", "-1.5", ""));
}

TEST(FigureLines, SayWhyThereIsNoDifference) {
    ModeFigures mode;
    mode.targetY = {120, ""};
    mode.measuredY = {{}, "no white"};
    EXPECT_THAT(textsOf(lineOf(mode, "white_tristimulus_y")),
                ElementsAre("120.0000", "n/a (no white)", "n/a (no white)"));
    mode.targetY = {{}, "no number"};
    mode.measuredY = {1, ""};
    EXPECT_THAT(textsOf(lineOf(mode, "white_tristimulus_y")),
                ElementsAre("n/a (no number)", "1.0000", "n/a (no number)"));
    mode.targetBrightness = "80 %";
    EXPECT_THAT(textsOf(lineOf(mode, "white_tristimulus_y")), ElementsAre("", "1.0000", ""));
    EXPECT_EQ(lineOf(mode, "white_tristimulus_y").targetText, "80 %");
}

TEST(FigureLines, HaveNoDeviationFromATargetOfZero) {
    ModeFigures mode;
    mode.targetY = {0, ""};
    mode.measuredY = {118.5, ""};
    EXPECT_EQ(textsOf(lineOf(mode, "white_tristimulus_y_deviation")).at(1), "n/a (the target is 0)");
}

TEST(FigureLines, HaveTheUnitThatTheUserGave) {
    EXPECT_EQ(lineOf({}, "white_tristimulus_y").unit, "");
    KnownUnits known;
    known.yUnit = "nt";
    EXPECT_EQ(lineOf({}, "white_tristimulus_y", known).unit, "nt");
    EXPECT_EQ(lineOf({}, "white_cct", known).unit, "K");
}

TEST(FigureLines, HaveTheWhiteInBothDiagrams) {
    ModeFigures mode;
    mode.measuredWhite = {{95.047, 100, 108.883}};
    mode.measuredChromaticity = {{0.31273, 0.32902}};
    mode.targetChromaticity = {{0.3127, 0.3290}};
    EXPECT_EQ(textsOf(lineOf(mode, "white_u")).at(1), "0.1978");  // 4x / (-2x + 12y + 3) = 1.25092 / 6.32278
    EXPECT_EQ(textsOf(lineOf(mode, "white_v")).at(1), "0.4683");  // 9y / 6.32278
    EXPECT_EQ(textsOf(lineOf(mode, "white_u")).at(0), "0.1978");
    EXPECT_EQ(textsOf(lineOf(mode, "white_cct")).at(0), "6504");  // D65
}

TEST(FigureLines, HaveWordsForATemperatureAlone) {
    ModeFigures mode;
    mode.targetWhite = "Temperature 6500";
    EXPECT_EQ(lineOf(mode, "white_cct").targetText, "Temperature 6500");
    EXPECT_THAT(textsOf(lineOf(mode, "white_cct")).at(0), "");
    EXPECT_EQ(textsOf(lineOf(mode, "white_x")).at(0), "n/a (the target has no x and y)");
}

TEST(FigureLines, HaveFractionsInPerCent) {
    ModeFigures mode;
    mode.tone.greatestDeviation = {0.0125, ""};
    mode.tone.greatestImbalance = {{}, "no grey"};
    mode.gamuts = {{"sRGB", {0.995, ""}, {1.5, ""}, {0.98, ""}, {1.4, ""}}};
    EXPECT_EQ(textsOf(lineOf(mode, "tone_greatest_deviation")).at(1), "1.25");
    EXPECT_EQ(textsOf(lineOf(mode, "tone_greatest_imbalance")).at(1), "n/a (no grey)");
    EXPECT_EQ(textsOf(lineOf(mode, "gamut_srgb_coverage_xy")).at(1), "99.5");
    EXPECT_EQ(textsOf(lineOf(mode, "gamut_srgb_area_xy")).at(1), "150.0");
    EXPECT_EQ(textsOf(lineOf(mode, "gamut_srgb_coverage_uv")).at(1), "98.0");
    EXPECT_EQ(textsOf(lineOf(mode, "gamut_srgb_area_uv")).at(1), "140.0");
    EXPECT_EQ(textsOf(lineOf(mode, "gamut_bt2020_area_uv")).at(1), "n/a (not computed)");
}

TEST(FigureLines, HaveTheNameOfTheirMap) {
    MapFigures map = mapOf("Brightness");
    map.unit = "cd/m²";
    map.mean = {1032.24, ""};
    map.greatestDeviation = {0.0907, ""};
    const std::vector<FigureLine> lines = figureLines(map);
    EXPECT_EQ(lines.at(2).key, "brightness_mean");
    EXPECT_EQ(lines.at(2).unit, "cd/m²");
    EXPECT_EQ(textsOf(lines.at(2)).at(1), "1032.2");
    EXPECT_EQ(lines.at(4).key, "brightness_greatest_deviation");
    EXPECT_EQ(lines.at(4).unit, "%");
    EXPECT_EQ(textsOf(lines.at(4)).at(1), "9.1");
}
