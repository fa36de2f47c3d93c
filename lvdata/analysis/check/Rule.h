#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The severity of a finding.
enum class Severity {
    info,     ///< A remark: nothing is lost.
    warning,  ///< Something is lost or changed when the document is written back, or is probably a mistake.
    error,    ///< There is no record, or it holds a different value than the document.
};

/// "info", "warning" or "error".
[[nodiscard]] std::string_view nameOf(Severity severity);

/// One thing that `check` looks for.
struct Rule {
    std::string_view id;           ///< Three digits, which never change: "301".
    Severity severity;             ///< The severity.
    std::string_view title;        ///< In a few words: "unknown element".
    std::string_view explanation;  ///< What it means, what happens to the content, and what to do.
    std::string_view failing;      ///< A document with such a finding,
    int line;                      ///< which is in this line.
    std::string_view passing;      ///< The same without.
};

/// All rules, in the order of their ids.
[[nodiscard]] const std::vector<Rule>& rules();

/// The rule with that id; null when there is none.
[[nodiscard]] const Rule* findRule(std::string_view id);

}  // namespace lv::analysis
