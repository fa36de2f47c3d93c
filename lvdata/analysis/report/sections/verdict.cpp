#include <lvdata/analysis/report/sections.h>

#include <algorithm>

namespace lv::analysis {
namespace {

std::string targetOf(const FigureLine& line) {
    return line.targetText.empty() ? line.text(line.target) : line.targetText;
}

View rowOf(const JudgedLine& judged) {
    const FigureLine& line = judged.line;
    return View::Members{
        {"label", line.label},
        {"unit", line.unit},
        {"target", textView(targetOf(line))},
        {"measured", line.text(line.measured)},
        {"difference", line.text(line.difference)},
        {"limit", judged.limit == nullptr ? "" : judged.limit->text()},
        {"mark", markView(judged.mark)},
    };
}

/// Whether the tables of the gamut show a figure, so that it needs no row here.
bool standsElsewhere(const JudgedLine& judged) {
    return judged.limit == nullptr && judged.line.group == "Gamut";
}

std::vector<JudgedLine> toldHere(std::vector<JudgedLine> lines) {
    lines.erase(std::remove_if(lines.begin(), lines.end(), &standsElsewhere), lines.end());
    return lines;
}

}  // namespace

View figureGroupsView(const std::vector<JudgedLine>& lines) {
    View::Items groups;
    for (std::size_t first = 0, next = 0; first < lines.size(); first = next) {
        View::Items rows;
        for (next = first; next < lines.size() && lines[next].line.group == lines[first].line.group; ++next) {
            rows.push_back(rowOf(lines[next]));
        }
        groups.push_back(View::Members{{"group", lines[first].line.group}, {"rows", std::move(rows)}});
    }
    return groups;
}

View verdictView(const ReportContents& contents, const ReportedMode& mode) {
    const LimitSet& limits = contents.limits();
    return View::Members{
        {"verdict_mark", verdictMarkView(mode.verdict.mark())},
        {"verdict_counts", countsText(mode.verdict)},
        {"verdict_limits", limits.title.empty() ? limits.name : limits.title},
        {"verdict_notice", limits.notice},
        {"groups", figureGroupsView(toldHere(mode.lines))},
    };
}

}  // namespace lv::analysis
