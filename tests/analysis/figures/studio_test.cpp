#include <lvdata/analysis/figures/lines.h>

#include <tests/analysis/figures/studio.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using lv::analysis::FigureLine;
using lv::analysis::figureLines;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using lv::test::studioFigures;

std::string rowsOf(const std::string& index, const std::vector<FigureLine>& lines) {
    std::string rows;
    for (const FigureLine& line : lines) {
        const std::string target = line.targetText.empty() ? line.text(line.target) : line.targetText;
        rows += index + '\t' + line.key + '\t' + target + '\t' + line.text(line.measured) + '\t' +
                line.text(line.difference) + '\n';
    }
    return rows;
}

/// Mode, key, target, measured, difference; the maps belong to no mode.
std::string tableOf(const MonitorFigures& monitor) {
    std::string table;
    for (const ModeFigures& mode : monitor.modes) {
        table += rowsOf(mode.index, figureLines(mode, monitor.known));
    }
    return table + rowsOf("-", figureLines(monitor.uniformity)) + rowsOf("-", figureLines(monitor.brightness));
}

}  // namespace

TEST(StudioFigures, AreThoseOfTheFile) {
    const std::string table = tableOf(studioFigures());
    EXPECT_TRUE(table == lv::test::contentOf(LVDATA_STUDIO_FIGURES)) << LVDATA_STUDIO_FIGURES << " must be:\n" << table;
}
