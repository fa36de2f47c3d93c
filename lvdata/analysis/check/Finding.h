#pragma once

#include <lvdata/analysis/check/Rule.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lv::analysis {

/// Something in a document that its record does not keep unchanged, or that is probably a mistake.
struct Finding {
    const Rule* rule = nullptr;  ///< The rule. Never null.
    Severity severity{};         ///< The severity; usually that of the rule.
    int line = 0;                ///< The line, counted from 1; 0 when no line applies.
    std::string path{};          ///< XPath of the element or attribute: "/MonitorInfo/AssetInfo/Owner".
    std::string message{};       ///< What is wrong, and what happens to the content.
};

/// The findings of one document, in the order of their lines.
struct Findings {
    std::vector<Finding> listed{};  ///< For each severity at most the requested number,
    std::size_t errors = 0;         ///< but all are counted: errors,
    std::size_t warnings = 0;       ///< warnings,
    std::size_t infos = 0;          ///< and remarks.

    /// How many there are in all.
    [[nodiscard]] std::size_t count() const { return errors + warnings + infos; }

    /// How many there are of that severity.
    [[nodiscard]] std::size_t countOf(Severity severity) const;

    /// How many there are of that severity, or of a worse one.
    [[nodiscard]] std::size_t countFrom(Severity severity) const;
};

}  // namespace lv::analysis
