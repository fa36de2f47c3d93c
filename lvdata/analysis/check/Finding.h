#pragma once

#include <lvdata/analysis/check/Rule.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lv::analysis {

/// Something in a document that its record does not keep as it stands, or that is probably a mistake.
struct Finding {
    const Rule* rule = nullptr;  ///< What was looked for. Never null.
    Severity severity{};         ///< How much it matters; most often what the rule says.
    int line = 0;                ///< Where it is, counted from 1; 0 when no line applies.
    std::string path{};          ///< XPath of the element or attribute: "/MonitorInfo/AssetInfo/Owner".
    std::string message{};       ///< What is wrong, and what becomes of it.
};

/// The findings of one document, in the order of their lines.
struct Findings {
    std::vector<Finding> listed{};  ///< Of each severity at most as many as asked for,
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
