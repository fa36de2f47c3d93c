#include <lvdata/analysis/figures/LimitSet.h>

namespace lv::analysis {

std::string FigureLimit::text(int decimals) const {
    return maximum ? "\u2264 " + fixedText(*maximum, decimals) : "";
}

const FigureLimit* LimitSet::limitOf(std::string_view key) const {
    for (const FigureLimit& limit : limits) {
        if (limit.key == key) {
            return &limit;
        }
    }
    return nullptr;
}

LimitSetResult readLimitSet(std::string_view) {
    return {std::nullopt, 0, "not done yet"};
}

const std::vector<LimitSet>& knownLimitSets() {
    static const std::vector<LimitSet> sets = {
        {"default", "Default limits", "This is no test against a standard.", {{"white_delta_uv", {}, 0.005, ""}}}};
    return sets;
}

Mark Verdict::mark() const {
    return failed > 0 ? Mark::fails : notAvailable > 0 ? Mark::notAvailable : passed > 0 ? Mark::passes : Mark::none;
}

std::vector<JudgedLine> judge(const std::vector<FigureLine>& lines, const LimitSet& set) {
    std::vector<JudgedLine> judged;
    for (const FigureLine& line : lines) {
        judged.push_back({line, set.limitOf(line.key), Mark::none});
    }
    return judged;
}

Verdict verdictOf(const std::vector<JudgedLine>&) {
    return {};
}

}  // namespace lv::analysis
