#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

#include <algorithm>

namespace lv::analysis {
namespace {

View adjustmentOf(const SixColours& adjustment) {
    View::Items values;
    for (const int value : adjustment.values) {
        values.push_back(std::to_string(value));
    }
    return View::Members{{"name", adjustment.name}, {"place", adjustment.place}, {"values", std::move(values)}};
}

bool hasTables(const ModeFigures& mode) {
    return std::any_of(mode.tables.begin(), mode.tables.end(), [](const auto& table) { return !table.empty(); });
}

}  // namespace

View tablesView(const ReportedMode& mode) {
    const ModeFigures& figures = *mode.figures;
    View::Items adjustments;
    for (const SixColours& adjustment : figures.sixColours) {
        adjustments.push_back(adjustmentOf(adjustment));
    }
    const bool hasSixColours = !adjustments.empty();
    return View::Members{
        {"picture_tables", hasTables(figures) ? tablesPicture(figures, mode.formOf("tables")) : ""},
        {"picture_six", hasSixColours ? sixColoursPicture(figures, mode.formOf("six")) : ""},
        {"adjustments", std::move(adjustments)},
    };
}

}  // namespace lv::analysis
