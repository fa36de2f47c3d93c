#include "MonitorTest.h"
#include "PageRows.h"
#include "ShowTest.h"

#include <lvdata/analysis/Catalogue.h>
#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/monitors/MonitorDocument.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include <nlohmann/json.hpp>

// One file has the figures of the sample monitor. Text, JSON and page must have the same digits.

namespace {

using lv::analysis::FigureLine;
using nlohmann::json;

/// A row of the file, or of what is compared with it.
struct Row {
    std::string key;
    std::string target;
    std::string measured;
    std::string difference;
};

bool operator==(const Row& left, const Row& right) {
    return left.key == right.key && left.target == right.target && left.measured == right.measured &&
           left.difference == right.difference;
}

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.key << '|' << row.target << '|' << row.measured << '|' << row.difference;
}

/// The rows of a mode in the file; "-" for those of the maps.
std::vector<Row> rowsOfFile(const std::string& mode) {
    std::vector<Row> rows;
    std::ifstream file(LVDATA_STUDIO_FIGURES);
    for (std::string line; std::getline(file, line);) {
        std::istringstream text(line);
        std::string index;
        Row row;
        std::getline(text, index, '\t');
        std::getline(text, row.key, '\t');
        std::getline(text, row.target, '\t');
        std::getline(text, row.measured, '\t');
        std::getline(text, row.difference);
        if (index == mode) {
            rows.push_back(row);
        }
    }
    return rows;
}

std::vector<std::string> modesOfSample() {
    return {"0", "1", "2", "3", "4"};
}

/// So many characters of a text in UTF-8 from that one on, without blanks at the end.
std::string characters(const std::string& text, std::size_t from, std::size_t count) {
    std::string result;
    std::size_t character = 0;
    for (const char byte : text) {
        character += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
        result += from < character && character - from <= count ? std::string(1, byte) : "";
    }
    return result.substr(0, result.find_last_not_of(' ') + 1);
}

/// The rows of the table that `show --mode` prints. Its rows have labels in place of keys.
std::vector<Row> rowsOfText(const std::string& text) {
    const std::string line = text.substr(text.rfind('\n', text.find("  Target  ")) + 1);
    const std::size_t target = line.find("Target");
    const std::size_t measured = line.find("Measured");
    const std::size_t difference = line.find("Difference");
    std::vector<Row> rows;
    for (const std::string& each : linesIn(line)) {
        if (each.rfind("  ", 0) == 0 && each.find("Measured  ") == std::string::npos) {
            rows.push_back({characters(each, 2, target - 2), characters(each, target, measured - target),
                            characters(each, measured, difference - measured), characters(each, difference, 1000)});
        }
    }
    return rows;
}

/// A document of JSON whose numbers are texts, with the digits that they were written with.
class NumbersAsTexts : public nlohmann::detail::json_sax_dom_parser<json> {
public:
    using json_sax_dom_parser::json_sax_dom_parser;

    bool number_integer(std::int64_t number) { return add(std::to_string(number)); }
    bool number_unsigned(std::uint64_t number) { return add(std::to_string(number)); }
    bool number_float(double /*number*/, std::string text) {
        std::replace(text.begin(), text.end(), ',', '.');  // the parser hands on the decimal sign of the locale
        return add(text);
    }

private:
    bool add(std::string text) { return string(text); }
};

json withNumbersAsTexts(const std::string& text) {
    json document;
    NumbersAsTexts handler(document);
    EXPECT_TRUE(json::sax_parse(text, &handler));
    return document;
}

std::string textOf(const json& figure, const std::string& member) {
    if (figure.contains(member + "_text")) {
        return figure[member + "_text"];
    }
    if (figure.contains(member + "_reason")) {
        return "n/a (" + figure[member + "_reason"].get<std::string>() + ')';
    }
    return figure[member].is_null() ? "" : figure[member].get<std::string>();
}

Row rowOf(const json& figures, const std::string& key) {
    const json& figure = figures.at(key);
    return {key, textOf(figure, "target"), textOf(figure, "measured"), textOf(figure, "difference")};
}

std::vector<Row> rowsOf(const json& figures, const std::vector<Row>& expected) {
    EXPECT_EQ(figures.size(), expected.size());
    std::vector<Row> rows;
    for (const Row& row : expected) {
        rows.push_back(rowOf(figures, row.key));
    }
    return rows;
}

class SameFigures : public MonitorTest, public testing::WithParamInterface<std::string> {};

TEST_P(SameFigures, AreShownInTheText) {
    const std::vector<Row> expected = rowsOfFile(GetParam());
    std::vector<Row> rows = rowsOfText(made({"show", "--mode", GetParam(), studio}));
    ASSERT_GT(expected.size(), 10U);
    ASSERT_EQ(rows.size(), expected.size());
    const auto lines = figureLines(lv::analysis::ModeFigures());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_EQ(rows[index].key.rfind(lines[index].label, 0), 0U) << rows[index].key;
        rows[index].key = lines[index].key;
    }
    EXPECT_EQ(rows, expected);
}

TEST_P(SameFigures, AreShownInTheJSON) {
    const json document = withNumbersAsTexts(made({"show", "--json", "--mode", GetParam(), studio}));
    const std::vector<Row> expected = rowsOfFile(GetParam());
    ASSERT_EQ(document["modes"].size(), 1U);
    EXPECT_EQ(rowsOf(document["modes"][0]["figures"], expected), expected);
}

INSTANTIATE_TEST_SUITE_P(Modes, SameFigures, testing::ValuesIn(modesOfSample()),
                         [](const auto& test) { return "Mode" + test.param; });

class FiguresOfSample : public MonitorTest {};

/// What was measured of the gamut, as its two tables have it: the first one begins with the targets.
std::vector<std::string> gamutCells(const std::string& page, const std::string& section) {
    std::vector<std::string> cells;
    for (const PageRow& row : rowsOfPage(page, section + "//table[caption='Primaries']")) {
        cells.insert(cells.end(), row.cells.begin() + 2, row.cells.end());
    }
    for (const PageRow& row : rowsOfPage(page, section + "//table[starts-with(caption, 'Measured gamut')]")) {
        cells.insert(cells.end(), row.cells.begin(), row.cells.end());
    }
    return cells;
}

/// The figures of a mode in its section of the page, with keys and targets of `expected` where the page has none.
std::vector<Row> rowsOfSection(const std::string& page, const std::string& section, const std::vector<Row>& expected) {
    const std::vector<PageRow> shown = rowsOfPage(page, section + "//table[@class='figures']");
    const std::vector<std::string> cells = gamutCells(page, section);
    const auto lines = figureLines(lv::analysis::ModeFigures());
    EXPECT_EQ(shown.size() + cells.size(), expected.size());
    auto row = shown.begin();
    auto cell = cells.begin();
    std::vector<Row> rows;
    for (std::size_t index = 0; index < lines.size() && row != shown.end(); ++index) {
        if (lines[index].group == "Gamut" && cell != cells.end()) {
            rows.push_back({lines[index].key, expected[index].target, *cell++, expected[index].difference});
        } else {
            EXPECT_EQ(row->heading.rfind(lines[index].label, 0), 0U) << row->heading;
            rows.push_back({lines[index].key, row->cells.at(0), row->cells.at(1), row->cells.at(2)});
            ++row;
        }
    }
    return rows;
}

TEST_F(FiguresOfSample, OfAllModesAreInTheJSON) {
    const json document = withNumbersAsTexts(made({"show", "--json", studio}));
    ASSERT_EQ(document["modes"].size(), modesOfSample().size());
    for (std::size_t index = 0; index < modesOfSample().size(); ++index) {
        const std::vector<Row> expected = rowsOfFile(modesOfSample()[index]);
        EXPECT_EQ(rowsOf(document["modes"][index]["figures"], expected), expected);
    }
}

TEST_F(FiguresOfSample, OfMapsAreInTheJSON) {
    const json maps = withNumbersAsTexts(made({"show", "--json", "--grid", "5", studio}))["maps"];
    json figures = maps["uniformity"]["figures"];
    figures.update(maps["brightness"]["figures"]);
    EXPECT_EQ(rowsOf(figures, rowsOfFile("-")), rowsOfFile("-"));
}

/// The page tells of modes that were calibrated.
TEST_F(FiguresOfSample, AreInThePage) {
    const std::string page = made({"report", studio});
    for (const std::string mode : {"2", "3", "4"}) {
        const std::string section = "(//section[@class='mode'])[" + std::to_string(std::stoi(mode) - 1) + ']';
        const std::vector<Row> expected = rowsOfFile(mode);
        EXPECT_EQ(rowsOfSection(page, section, expected), expected) << mode;
    }
}

TEST_F(FiguresOfSample, OfMapsAreInThePage) {
    const std::string page = made({"report", "--grid", "5", studio});
    const std::vector<PageRow> shown = rowsOfPage(page, "//section[@id='uniformity']");
    const std::vector<Row> expected = rowsOfFile("-");
    ASSERT_EQ(shown.size(), expected.size());
    for (std::size_t index = 0; index < shown.size(); ++index) {
        EXPECT_EQ(shown[index].cells.at(0), expected[index].measured) << expected[index].key;
    }
}

/// Documents of a fleet are kept without their data; that must not change a figure.
TEST(Summaries, OfTextAndPageHaveTheSameLines) {
    std::ifstream file(studio, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const lv::analysis::Catalogue catalogue;
    const lv::analysis::Document document(text, catalogue);
    const auto monitor = lv::analysis::monitorOf(document.record());
    ASSERT_TRUE(monitor);
    const auto whole = lv::analysis::monitorFigures(*monitor, {"cd/m²", "cd/m²", 5});
    auto summary = whole;
    lv::analysis::dropData(summary);
    const auto texts = [](const std::vector<FigureLine>& lines) {
        std::vector<Row> rows;
        for (const FigureLine& line : lines) {
            rows.push_back({line.key + line.unit, line.targetText + line.text(line.target), line.text(line.measured),
                            line.text(line.difference)});
        }
        return rows;
    };
    for (std::size_t index = 0; index < whole.modes.size(); ++index) {
        EXPECT_EQ(texts(figureLines(summary.modes[index], summary.known)),
                  texts(figureLines(whole.modes[index], whole.known)));
        EXPECT_EQ(summary.modes[index].series.patches.capacity(), 0U);
        EXPECT_EQ(summary.modes[index].tone.steps.capacity(), 0U);
    }
    EXPECT_EQ(texts(figureLines(summary.uniformity)), texts(figureLines(whole.uniformity)));
    EXPECT_EQ(summary.uniformity.values.capacity(), 0U);
}

}  // namespace
