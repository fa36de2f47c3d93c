#include <lvdata/analysis/figures/LimitSet.h>

#include <lvdata/analysis/decimal.h>

#include <embedded/limits.h>

#include <array>
#include <charconv>
#include <iterator>

namespace lv::analysis {
namespace {

/// The shortest text that gives the number.
std::string shortest(double value) {
    std::array<char, 400> text{};  // room for the longest
    char* const end = std::next(text.data(), static_cast<std::ptrdiff_t>(text.size()));
    const double withoutSign = value == 0 ? 0 : value;  // not "-0"
    return {text.data(), std::to_chars(text.data(), end, withoutSign, std::chars_format::fixed).ptr};
}

/// The number that the text of a figure shows.
double shown(double value, int decimals) {
    return decimalNumber(fixedText(value, decimals)).value_or(value);
}

Mark markOf(const FigureLine& line, const FigureLimit& limit) {
    if (!line.measured.value) {
        return Mark::notAvailable;
    }
    const double value = shown(*line.measured.value, line.decimals);
    const bool isBelow = limit.minimum && value < *limit.minimum;
    const bool isAbove = limit.maximum && value > *limit.maximum;
    return isBelow || isAbove ? Mark::fails : Mark::passes;
}

std::vector<LimitSet> readKnownSets() {
    namespace files = embedded::limits;
    std::vector<LimitSet> sets;
    for (const std::string_view text : {files::default_json, files::iso14861_json, files::ebu3320_g1_json}) {
        LimitSetResult result = readLimitSet(text);
        if (result.set) {
            sets.push_back(*result.set);
        }
    }
    return sets;
}

}  // namespace

std::string FigureLimit::text() const {
    if (minimum && maximum) {
        return shortest(*minimum) + " to " + shortest(*maximum);
    }
    return maximum ? "\u2264 " + shortest(*maximum) : minimum ? "\u2265 " + shortest(*minimum) : "";
}

const FigureLimit* LimitSet::limitOf(std::string_view key) const {
    for (const FigureLimit& limit : limits) {
        if (limit.key == key) {
            return &limit;
        }
    }
    return nullptr;
}

const std::vector<LimitSet>& knownLimitSets() {
    static const std::vector<LimitSet> sets = readKnownSets();
    return sets;
}

Mark Verdict::mark() const {
    return failed > 0 ? Mark::fails : notAvailable > 0 ? Mark::notAvailable : passed > 0 ? Mark::passes : Mark::none;
}

std::vector<JudgedLine> judge(const std::vector<FigureLine>& lines, const LimitSet& set) {
    std::vector<JudgedLine> judged;
    for (const FigureLine& line : lines) {
        const FigureLimit* const limit = set.limitOf(line.key);
        judged.push_back({line, limit, limit != nullptr ? markOf(line, *limit) : Mark::none});
    }
    return judged;
}

Verdict verdictOf(const std::vector<JudgedLine>& lines) {
    Verdict verdict;
    for (const JudgedLine& line : lines) {
        verdict.passed += line.mark == Mark::passes ? 1U : 0U;
        verdict.failed += line.mark == Mark::fails ? 1U : 0U;
        verdict.notAvailable += line.mark == Mark::notAvailable ? 1U : 0U;
    }
    return verdict;
}

}  // namespace lv::analysis
