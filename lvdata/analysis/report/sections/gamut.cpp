#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

/// The figure with that key; null when the mode has none.
const FigureLine* lineOf(const ReportedMode& mode, const std::string& key) {
    const auto found = std::find_if(mode.lines.begin(), mode.lines.end(),
                                    [&key](const JudgedLine& judged) { return judged.line.key == key; });
    return found == mode.lines.end() ? nullptr : &found->line;
}

std::string cellOf(const FigureLine* line, Figure FigureLine::*number) {
    return line == nullptr ? "" : line->text(line->*number);
}

View primaryOf(const ReportedMode& mode, const std::string& name, const std::string& key) {
    const FigureLine* const x = lineOf(mode, key + "_x");
    const FigureLine* const y = lineOf(mode, key + "_y");
    View::Items cells = {cellOf(x, &FigureLine::target), cellOf(y, &FigureLine::target),
                         cellOf(x, &FigureLine::measured), cellOf(y, &FigureLine::measured),
                         cellOf(lineOf(mode, key + "_delta_uv"), &FigureLine::measured)};
    return View::Members{{"name", name}, {"cells", std::move(cells)}};
}

View spaceOf(const ReportedMode& mode, std::string_view name, const std::string& key) {
    View::Items cells;
    for (const char* const figure : {"_coverage_xy", "_area_xy", "_coverage_uv", "_area_uv"}) {
        cells.push_back(cellOf(lineOf(mode, "gamut_" + key + figure), &FigureLine::measured));
    }
    return View::Members{{"name", name}, {"cells", std::move(cells)}};
}

View spacesOf(const ReportedMode& mode) {
    constexpr std::array<const char*, 4> keys = {"srgb", "adobe_rgb", "display_p3", "bt2020"};
    View::Items rows;
    for (std::size_t index = 0; index < keys.size(); ++index) {
        rows.push_back(spaceOf(mode, colour::referenceSpaces()[index].name, keys[index]));
    }
    return rows;
}

}  // namespace

View gamutView(const ReportedMode& mode) {
    return View::Members{
        {"picture_xy", gamutPicture(*mode.figures, colour::Plane::xy, mode.formOf("xy"))},
        {"picture_uv", gamutPicture(*mode.figures, colour::Plane::uv, mode.formOf("uv"))},
        {"primaries", View::Items{primaryOf(mode, "Red", "primary_red"), primaryOf(mode, "Green", "primary_green"),
                                  primaryOf(mode, "Blue", "primary_blue")}},
        {"spaces", spacesOf(mode)},
    };
}

}  // namespace lv::analysis
