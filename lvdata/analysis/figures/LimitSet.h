#pragma once

#include <lvdata/analysis/figures/lines.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The limits of one figure.
struct FigureLimit {
    std::string key{};                ///< The `FigureLine::key` of the figure; its measured value is compared.
    std::optional<double> minimum{};  ///< The least value that passes.
    std::optional<double> maximum{};  ///< The greatest value that passes.
    std::string source{};             ///< Where the limit is from; may be empty.

    /// "≤ 0.005", "100 to 200": with all digits that the limit was given with.
    [[nodiscard]] std::string text() const;
};

/// A named set of limits, from a file.
struct LimitSet {
    std::string name{};                 ///< "default".
    std::string title{};                ///< For people: "Default limits of lvdata".
    std::string notice{};               ///< Shown with each result: that this is not a test against a standard.
    std::vector<FigureLimit> limits{};  ///< By key, each key once.

    /// The limit of a figure; null when it has none.
    [[nodiscard]] const FigureLimit* limitOf(std::string_view key) const;
};

/// A limit set, or why there is none.
struct LimitSetResult {
    std::optional<LimitSet> set{};  ///< The set.
    int line = 0;                   ///< The line of the error, counted from 1; 0 when no line applies.
    std::string reason{};           ///< What is wrong with it.
};

/// Reads the JSON text of a limit set: docs/limits.md. An unknown key, a wrong type or an unknown figure is an error.
[[nodiscard]] LimitSetResult readLimitSet(std::string_view text);

/// The sets that come with the library: "default", "iso14861", "ebu3320-g1".
[[nodiscard]] const std::vector<LimitSet>& knownLimitSets();

/// How a figure compares with its limit.
enum class Mark {
    none,          ///< It has no limit.
    passes,        ///< It is within its limit.
    fails,         ///< It is not.
    notAvailable,  ///< It has a limit, but the figure could not be computed.
};

/// A figure with its limit.
struct JudgedLine {
    FigureLine line{};                   ///< The figure.
    const FigureLimit* limit = nullptr;  ///< Its limit, of the set that was given; null when it has none.
    Mark mark = Mark::none;              ///< The result. The figure is compared as shown, with its digits.
};

/// The result of a mode as a whole.
struct Verdict {
    std::size_t passed = 0;        ///< Figures within their limits.
    std::size_t failed = 0;        ///< Figures outside their limits.
    std::size_t notAvailable = 0;  ///< Limits without a figure.

    /// `fails` when one fails, otherwise `notAvailable` when one is missing, otherwise `passes`, or `none` without any.
    [[nodiscard]] Mark mark() const;
};

/// Compares each line with its limit. The set must outlive the result.
[[nodiscard]] std::vector<JudgedLine> judge(const std::vector<FigureLine>& lines, const LimitSet& set);

/// Counts marks.
[[nodiscard]] Verdict verdictOf(const std::vector<JudgedLine>& lines);

}  // namespace lv::analysis
