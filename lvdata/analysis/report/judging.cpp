#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

void add(Verdict& sum, const Verdict& verdict) {
    sum.passed += verdict.passed;
    sum.failed += verdict.failed;
    sum.notAvailable += verdict.notAvailable;
}

void addMap(JudgedMonitor& judged, const MapFigures& map, const LimitSet& limits) {
    if (!map.values.empty()) {
        const std::vector<JudgedLine> lines = judge(figureLines(map), limits);
        judged.mapLines.insert(judged.mapLines.end(), lines.begin(), lines.end());
        add(judged.maps, verdictOf(lines));
    }
}

void addMode(JudgedMonitor& judged, const ModeFigures& mode, const MonitorFigures& monitor, const LimitSet& limits) {
    if (!hasResult(mode)) {
        judged.others.push_back(&mode);
        return;
    }
    ReportedMode reported;
    reported.figures = &mode;
    reported.id = "mode-" + std::to_string(judged.calibrated.size() + 1);
    reported.lines = judge(figureLines(mode, monitor.known), limits);
    reported.verdict = verdictOf(reported.lines);
    add(judged.verdict, reported.verdict);
    judged.calibrated.push_back(std::move(reported));
}

}  // namespace

JudgedMonitor judgedMonitor(const MonitorFigures& monitor, const LimitSet& limits,
                            const std::optional<std::string>& mode) {
    JudgedMonitor judged;
    for (const ModeFigures& figures : monitor.modes) {
        if (!mode || figures.index == *mode) {
            addMode(judged, figures, monitor, limits);
        }
    }
    addMap(judged, monitor.uniformity, limits);
    addMap(judged, monitor.brightness, limits);
    add(judged.verdict, judged.maps);
    return judged;
}

}  // namespace lv::analysis
