#pragma once

#include <lvdata/analysis/figures/lines.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// What one figure may be.
struct FigureLimit {
    std::string key{};                ///< The `FigureLine::key` that it judges, by its measured value.
    std::optional<double> minimum{};  ///< The least value that passes.
    std::optional<double> maximum{};  ///< The greatest value that passes.
    std::string source{};             ///< Where the limit is from; may be empty.

    /// "≤ 0.005", "100 to 200": with all the digits that the limit was given with.
    [[nodiscard]] std::string text() const;
};

/// A named set of limits, from a file.
struct LimitSet {
    std::string name{};                 ///< "default".
    std::string title{};                ///< For people: "Default limits of lvdata".
    std::string notice{};               ///< What stands beside each verdict: that it is no test against a standard.
    std::vector<FigureLimit> limits{};  ///< By key, each key once.

    /// The limit of a figure; null when it has none.
    [[nodiscard]] const FigureLimit* limitOf(std::string_view key) const;
};

/// A limit set, or why there is none.
struct LimitSetResult {
    std::optional<LimitSet> set{};  ///< The set.
    int line = 0;                   ///< Where the text is wrong, counted from 1; 0 when no line applies.
    std::string reason{};           ///< What is wrong with it.
};

/// Reads the JSON text of a limit set: docs/limits.md. An unknown key, a wrong type or a figure that there is not is an
/// error.
[[nodiscard]] LimitSetResult readLimitSet(std::string_view text);

/// The sets that come with the library: "default", "iso14861", "ebu3320-g1".
[[nodiscard]] const std::vector<LimitSet>& knownLimitSets();

/// How a figure does.
enum class Mark {
    none,          ///< It has no limit.
    passes,        ///< It is within its limit.
    fails,         ///< It is not.
    notAvailable,  ///< It has a limit and there is no figure.
};

/// A figure with its limit.
struct JudgedLine {
    FigureLine line{};                   ///< The figure.
    const FigureLimit* limit = nullptr;  ///< Its limit, of the set that was given; null when it has none.
    Mark mark = Mark::none;              ///< How it does. A figure is judged as it is shown, with its digits.
};

/// How a mode does as a whole.
struct Verdict {
    std::size_t passed = 0;        ///< Figures within their limits.
    std::size_t failed = 0;        ///< Figures that are not.
    std::size_t notAvailable = 0;  ///< Limits without a figure.

    /// `fails` when one fails, otherwise `notAvailable` when one is missing, otherwise `passes`, or `none` without any.
    [[nodiscard]] Mark mark() const;
};

/// Judges each line. The set must outlive the result.
[[nodiscard]] std::vector<JudgedLine> judge(const std::vector<FigureLine>& lines, const LimitSet& set);

/// Counts marks.
[[nodiscard]] Verdict verdictOf(const std::vector<JudgedLine>& lines);

}  // namespace lv::analysis
