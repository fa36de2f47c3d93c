#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

View cardOf(const ReportedMode& mode) {
    return View::Members{
        {"card_id", mode.id},
        {"card_name", shortened(mode.figures->name)},
        {"card_mark", verdictMarkView(mode.verdict.mark())},
        {"card_counts", countsText(mode.verdict)},
        {"card_time", shortened(mode.figures->calibratedTime)},
    };
}

View otherOf(const ModeFigures& mode) {
    return View::Members{
        {"index", textView(mode.index)},       {"name", textView(mode.name)},
        {"type", textView(mode.type)},         {"brightness", textView(mode.targetBrightness)},
        {"white", textView(mode.targetWhite)}, {"gamma", textView(mode.targetGamma)},
        {"gamut", textView(mode.targetGamut)},
    };
}

View mapsCardOf(const Verdict& verdict) {
    return View::Members{
        {"card_id", "uniformity"},
        {"card_name", "Uniformity"},
        {"card_mark", verdictMarkView(verdict.mark())},
        {"card_counts", countsText(verdict)},
        {"card_time", ""},
    };
}

View::Items cardsOf(const JudgedMonitor& judged) {
    View::Items cards;
    for (const ReportedMode& mode : judged.calibrated) {
        cards.push_back(cardOf(mode));
    }
    if (judged.maps.mark() != Mark::none) {
        cards.push_back(mapsCardOf(judged.maps));
    }
    return cards;
}

/// Adds the figures that do not pass, under a separate heading.
void addNotPassing(std::vector<JudgedLine>& found, const std::vector<JudgedLine>& lines, const std::string& heading) {
    for (const JudgedLine& judged : lines) {
        if (judged.mark == Mark::fails || judged.mark == Mark::notAvailable) {
            found.push_back(judged);
            found.back().line.group = heading;
        }
    }
}

std::vector<JudgedLine> notPassing(const JudgedMonitor& judged) {
    std::vector<JudgedLine> found;
    for (const ReportedMode& mode : judged.calibrated) {
        addNotPassing(found, mode.lines, shortened(mode.figures->name));
    }
    addNotPassing(found, judged.mapLines, "Uniformity");
    return found;
}

View othersOf(const std::vector<const ModeFigures*>& modes) {
    View::Items rows;
    for (const ModeFigures* mode : modes) {
        rows.push_back(otherOf(*mode));
    }
    return rows;
}

}  // namespace

View summaryView(const ReportContents& contents) {
    const LimitSet& limits = contents.limits();
    View::Items cards = cardsOf(contents.judged);
    const std::vector<JudgedLine> found = notPassing(contents.judged);
    return View::Members{
        {"has_results", !contents.judged.calibrated.empty()},
        {"has_cards", !cards.empty()},
        {"has_others", !contents.judged.others.empty()},
        {"overall_mark", verdictMarkView(contents.judged.verdict.mark())},
        {"overall_counts", countsText(contents.judged.verdict)},
        {"cards", std::move(cards)},
        {"others", othersOf(contents.judged.others)},
        {"has_not_passing", !found.empty()},
        {"groups", figureGroupsView(found)},
        {"limits_title", limits.title.empty() ? limits.name : limits.title},
        {"limits_notice", limits.notice},
    };
}

}  // namespace lv::analysis
