#include <lvdata/analysis/check/Collector.h>

#include <algorithm>
#include <utility>

namespace lv::analysis {
namespace {

std::size_t& countIn(Findings& findings, Severity severity) {
    switch (severity) {
    case Severity::error:
        return findings.errors;
    case Severity::warning:
        return findings.warnings;
    case Severity::info:
        break;
    }
    return findings.infos;
}

}  // namespace

std::size_t Findings::countOf(Severity severity) const {
    switch (severity) {
    case Severity::error:
        return errors;
    case Severity::warning:
        return warnings;
    case Severity::info:
        break;
    }
    return infos;
}

std::size_t Findings::countFrom(Severity severity) const {
    switch (severity) {
    case Severity::error:
        return errors;
    case Severity::warning:
        return errors + warnings;
    case Severity::info:
        break;
    }
    return count();
}

bool Collector::isListing(std::string_view id, std::optional<Severity> severity) const {
    return isWanted(id) && findings_.countOf(severity.value_or(findRule(id)->severity)) < options_.mostListed;
}

void Collector::add(std::string_view id, int line, std::string path, std::string message,
                    std::optional<Severity> severity) {
    if (!isWanted(id)) {
        return;
    }
    const Rule* const rule = findRule(id);
    const Severity counted = severity.value_or(rule->severity);
    if (isListing(id, counted)) {
        findings_.listed.push_back({rule, counted, line, std::move(path), std::move(message)});
    }
    ++countIn(findings_, counted);
}

Findings Collector::take() {
    std::stable_sort(findings_.listed.begin(), findings_.listed.end(),
                     [](const Finding& left, const Finding& right) { return left.line < right.line; });
    return std::move(findings_);
}

}  // namespace lv::analysis
