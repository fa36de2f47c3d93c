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

View cardsOf(const std::vector<ReportedMode>& modes) {
    View::Items cards;
    for (const ReportedMode& mode : modes) {
        cards.push_back(cardOf(mode));
    }
    return cards;
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
    return View::Members{
        {"has_cards", !contents.judged.calibrated.empty()},
        {"has_others", !contents.judged.others.empty()},
        {"cards", cardsOf(contents.judged.calibrated)},
        {"others", othersOf(contents.judged.others)},
        {"limits_title", limits.title.empty() ? limits.name : limits.title},
        {"limits_notice", limits.notice},
    };
}

}  // namespace lv::analysis
