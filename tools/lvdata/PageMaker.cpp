#include "PageMaker.h"

#include "mode_option.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace tool {
namespace {

using lv::analysis::FigureLine;
using lv::analysis::LimitSet;
using lv::analysis::MapFigures;
using lv::analysis::ModeFigures;
using lv::analysis::MonitorFigures;
using lv::analysis::ReportedDocument;

bool passes(const std::vector<FigureLine>& lines, const LimitSet& limits) {
    return verdictOf(judge(lines, limits)).failed == 0;
}

/// The modes of that index, or all. Throws `Failure` when there is none of it.
std::vector<ModeFigures> modesOf(const lv::analysis::Snapshot& snapshot, const std::optional<std::string>& index) {
    const std::vector<ModeFigures>& modes = snapshot.figures.modes;
    return index ? modesOfIndex(modes, *index, snapshot.document) : modes;
}

bool isWithin(const LimitSet& limits, const MonitorFigures& monitor, const std::vector<ModeFigures>& modes) {
    return std::all_of(modes.begin(), modes.end(),
                       [&](const ModeFigures& mode) { return passes(figureLines(mode, monitor.known), limits); }) &&
           passes(figureLines(monitor.uniformity), limits) && passes(figureLines(monitor.brightness), limits);
}

}  // namespace

MonitorPage PageMaker::pageOf(const MonitorDocuments& documents) const {
    std::vector<ReportedDocument> reported;
    for (const MonitorDocument& document : documents) {
        const bool isLatest = &document == &latestOf(documents);
        reported.push_back(isLatest ? reader_.readWhole(document) : ReportedDocument{document.snapshot, {}, {}});
    }
    ReportedDocument& latest = reported.back();
    const auto modes = modesOf(latest.snapshot, form_.mode);
    MonitorPage page{reportPage(reported, form_), {}, isWithin(*form_.limits, latest.snapshot.figures, modes)};
    dropData(latest.snapshot.figures);
    page.entry = {"", std::move(latest.snapshot), documents.size(), std::move(latest.findings)};
    return page;
}

}  // namespace tool
