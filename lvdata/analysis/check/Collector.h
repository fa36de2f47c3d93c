#pragma once

#include <lvdata/analysis/check/check.h>

#include <optional>
#include <string>
#include <string_view>

namespace lv::analysis {

/// Collects the findings of one document.
class Collector {
public:
    /// The options must outlive the collector.
    explicit Collector(const CheckOptions& options) : options_(options) {}

    /// Whether the rule with that id is checked. Call this before work that only this rule needs.
    [[nodiscard]] bool isWanted(std::string_view id) const { return options_.ignored.count(id) == 0; }

    /// Whether another finding of that rule would be listed, with its own or the given severity. If not, its path and
    /// message are not needed.
    [[nodiscard]] bool isListing(std::string_view id, std::optional<Severity> severity = std::nullopt) const;

    /// Adds a finding of that rule, with its own or the given severity.
    void add(std::string_view id, int line, std::string path, std::string message,
             std::optional<Severity> severity = std::nullopt);

    /// All findings, in the order of their lines.
    [[nodiscard]] Findings take();

private:
    const CheckOptions& options_;
    Findings findings_{};
};

}  // namespace lv::analysis
