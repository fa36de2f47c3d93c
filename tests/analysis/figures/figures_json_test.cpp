#include <lvdata/analysis/figures/lines.h>

#include <tests/analysis/figures/studio.h>

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using lv::analysis::FigureLine;
using lv::analysis::figureLines;
using lv::analysis::figuresJSON;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using lv::test::studioFigures;
using nlohmann::json;
using testing::HasSubstr;

/// "\"contrast\":{\"unit\":null,...": as it stands in the text, so that each digit counts.
std::string textOf(const FigureLine& line) {
    const auto number = [&](const std::string& key, const lv::analysis::Figure& figure) {
        const std::string reason = figure.reason.empty() ? "" : ",\"" + key + "_reason\":" + json(figure.reason).dump();
        return ",\"" + key + "\":" + (figure.value ? line.text(figure) : "null" + reason);
    };
    const std::string unit = line.unit.empty() ? "null" : json(line.unit).dump();
    const std::string words = line.targetText.empty() ? "" : ",\"target_text\":" + json(line.targetText).dump();
    return "\"" + line.key + "\":{\"unit\":" + unit + number("target", line.target) + words +
           number("measured", line.measured) + number("difference", line.difference) + "}";
}

void expectLines(const std::string& text, const std::vector<FigureLine>& lines) {
    std::size_t position = text.find("\"figures\":{");
    for (const FigureLine& line : lines) {
        const std::size_t found = text.find(textOf(line), position);
        EXPECT_NE(found, std::string::npos) << textOf(line);
        position = found == std::string::npos ? position : found;
    }
}

/// All keys of the objects inside, but for those of figures.
void addKeys(const json& value, std::set<std::string>& keys) {
    for (const auto& [key, inside] : value.items()) {
        if (value.is_object()) {
            keys.insert(key);
        }
        if (inside.is_structured() && key != "figures") {
            addKeys(inside, keys);
        }
    }
}

}  // namespace

TEST(FiguresJSON, HasTheDigitsOfTheLines) {
    const MonitorFigures monitor = studioFigures();
    const std::string text = figuresJSON(monitor);
    std::size_t begin = text.find("\"modes\":");
    for (const ModeFigures& mode : monitor.modes) {
        begin = text.find("{\"index\":\"" + mode.index + "\"", begin);
        ASSERT_NE(begin, std::string::npos) << mode.index;
        expectLines(text.substr(begin), figureLines(mode));
    }
    const std::size_t maps = text.find("\"maps\":");
    expectLines(text.substr(text.find("\"uniformity\":", maps)), figureLines(monitor.uniformity));
    expectLines(text.substr(text.find("\"brightness\":", maps)), figureLines(monitor.brightness));
}

TEST(FiguresJSON, IsJSON) {
    const json root = json::parse(figuresJSON(studioFigures()));
    EXPECT_EQ(root["monitor"]["serial"], "27W-000417");
    EXPECT_EQ(root["y_unit"], nullptr);
    const json& photo = root["modes"][2];
    EXPECT_EQ(photo["name"], "Photo");
    EXPECT_EQ(photo["patches"].size(), 100U);
    EXPECT_EQ(photo["tone_steps"].size(), 52U);
    EXPECT_EQ(photo["patches"][99]["rgb"], json::parse("[255, 255, 0]"));
    EXPECT_EQ(photo["patches"][99]["number"], 100);
    EXPECT_EQ(photo["patches_worst"].size(), 5U);
    EXPECT_EQ(photo["tone_steps"][0]["balance"], nullptr);
    EXPECT_EQ(photo["tone_steps"][0]["gamma_reason"], "black and white have no gamma");
    EXPECT_EQ(photo["tone_steps"][51]["balance"].size(), 3U);
    EXPECT_EQ(photo["six_colours"][0]["values"].size(), 6U);
    EXPECT_EQ(root["maps"]["uniformity"]["against_centre"].size(), 25U);
    EXPECT_EQ(root["maps"]["uniformity"]["grid_width"], 5);
}

TEST(FiguresJSON, HasTheKeysOfThePage) {
    const std::string page = lv::test::contentOf(std::string(LVDATA_DOCS_DIR) + "/figures.md");
    const std::string section = page.substr(page.find("\n## JSON"));
    std::set<std::string> keys;
    addKeys(json::parse(figuresJSON(studioFigures())), keys);
    for (const std::string& key : keys) {
        const std::string reason = "_reason";
        const bool isReason = key.size() > reason.size() && key.rfind(reason) == key.size() - reason.size();
        EXPECT_TRUE(isReason || section.find('`' + key + '`') != std::string::npos) << key;
    }
    EXPECT_GT(keys.size(), 40U);
}

TEST(FiguresJSON, IsCompleteWithoutFigures) {
    const json root = json::parse(figuresJSON({}));
    EXPECT_TRUE(root["modes"].empty());
    MonitorFigures one;
    one.modes.emplace_back();
    EXPECT_EQ(json::parse(figuresJSON(one))["modes"][0]["patches_reference"], nullptr);
}

TEST(FiguresJSON, HoldsTextsOfAnyKind) {
    MonitorFigures monitor;
    monitor.name = "<script>\"\n\\" + std::string(10000, 'a');
    monitor.model = "\xFF";
    monitor.known.yUnit = "cd/m²";
    monitor.modes.emplace_back();
    monitor.modes[0].targetBlack = "<b>";
    const json root = json::parse(figuresJSON(monitor));
    EXPECT_EQ(root["monitor"]["name"], monitor.name);
    EXPECT_EQ(root["monitor"]["model"], "\uFFFD");
    EXPECT_EQ(root["y_unit"], "cd/m²");
    EXPECT_EQ(root["modes"][0]["figures"]["white_tristimulus_y"]["unit"], "cd/m²");
    EXPECT_EQ(root["modes"][0]["figures"]["black_tristimulus_y"]["target_text"], "<b>");
}

TEST(FiguresJSON, IsOneLine) {
    EXPECT_EQ(figuresJSON(studioFigures()).find('\n'), std::string::npos);
    EXPECT_LT(figuresJSON(studioFigures()).size(), 100000U);
}

TEST(FiguresJSON, HasTheDigitsThatTheDocumentationStates) {
    MonitorFigures monitor;
    ModeFigures& mode = monitor.modes.emplace_back();
    mode.tone.steps.push_back({0.5, 0.25, {0.2, ""}, {2, ""}, {{1, 1.1, 0.9}}});
    mode.series.patches.push_back({7, {{1, 2, 3}}, {{4, 5, 6, 7}}, {{1, 2, 3}}, {{4, 5, 6}}, {0.5, ""}});
    const std::string text = figuresJSON(monitor);
    EXPECT_THAT(text, HasSubstr("{\"signal\":0.5000,\"light\":0.2500,\"target\":0.2000,\"gamma\":2.00,"
                                "\"balance\":[1.000,1.100,0.900]}"));
    EXPECT_THAT(text, HasSubstr("{\"number\":7,\"rgb\":[1,2,3],\"cmyk\":[4,5,6,7],\"xyz\":[1.0000,2.0000,3.0000],"
                                "\"expected_xyz\":[4.0000,5.0000,6.0000],\"delta_e2000\":0.50}"));
}
