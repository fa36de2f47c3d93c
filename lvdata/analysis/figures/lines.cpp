#include <lvdata/analysis/figures/lines.h>

namespace lv::analysis {

std::string FigureLine::text(const Figure& figure) const {
    return figure.value || !figure.reason.empty() ? figure.text(decimals) : "";
}

std::vector<FigureLine> figureLines(const ModeFigures& mode, const KnownUnits&) {
    return {{"white_delta_uv", "White", "Difference of white", "", 4, {}, mode.deltaUV, {}, ""}};
}

std::vector<FigureLine> figureLines(const MapFigures& map) {
    return {{"minimum", "Uniformity", "Minimum", "", 0, {}, map.minimum, {}, ""}};
}

std::string figuresJSON(const MonitorFigures&) {
    return "{}";
}

}  // namespace lv::analysis
