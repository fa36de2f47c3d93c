#include <lvdata/analysis/check/check.h>
#include <lvdata/analysis/report/sections.h>

#include <algorithm>

namespace lv::analysis {
namespace {

bool isLoss(const Finding& finding) {
    static const CheckOptions options = lossOptions();
    return options.ignored.count(finding.rule->id) == 0;
}

View findingOf(const Finding& finding) {
    return View::Members{
        {"rule", finding.rule->id},
        {"title", finding.rule->title},
        {"severity", nameOf(finding.severity)},
        {"line", finding.line == 0 ? "" : std::to_string(finding.line)},
        {"path", textView(finding.path)},
        {"message", textView(finding.message)},
        {"loss", isLoss(finding)},
    };
}

View listOf(const Findings& findings) {
    View::Items rows;
    for (const Finding& finding : findings.listed) {
        rows.push_back(findingOf(finding));
    }
    return rows;
}

}  // namespace

View qualityView(const Findings& findings) {
    const bool isWhole = findings.listed.size() >= findings.count();
    return View::Members{
        {"finding_counts", counted(findings.errors, "error") + ", " + counted(findings.warnings, "warning") + ", " +
                               counted(findings.infos, "remark")},
        {"left_out", isWhole ? "" : std::to_string(findings.count() - findings.listed.size())},
        {"has_findings", findings.count() > 0},
        {"is_lossless", isWhole && std::none_of(findings.listed.begin(), findings.listed.end(), &isLoss)},
        {"findings", listOf(findings)},
    };
}

}  // namespace lv::analysis
