#include <lvdata/analysis/report/filling.h>
#include <lvdata/analysis/report/page_frame.h>
#include <lvdata/analysis/report/report.h>
#include <lvdata/analysis/report/sections.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>
#include <string>
#include <utility>

namespace lv::analysis {
namespace {

/// The greatest mean ΔE00 of the modes, with the digits of its line.
std::string worstMeanOf(const JudgedMonitor& judged) {
    const FigureLine* worst = nullptr;
    for (const ReportedMode& mode : judged.calibrated) {
        for (const JudgedLine& each : mode.lines) {
            const bool isMean = each.line.key == patchesMeanKey && each.line.measured.value.has_value();
            if (isMean && (worst == nullptr || *worst->measured.value < *each.line.measured.value)) {
                worst = &each.line;
            }
        }
    }
    return worst == nullptr ? "n/a (nothing measured)" : worst->text(worst->measured);
}

/// The address of a page in the same folder or below. Whatever the name is, the address is a file next to the index.
std::string addressOf(std::string_view page) {
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address = "./";
    for (const char character : page) {
        const auto byte = static_cast<unsigned char>(character);
        if (plain.find(character) != std::string_view::npos) {
            address += character;
        } else {
            address += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return address;
}

View entryOf(const FleetEntry& entry) {
    return View::Members{
        {"address", addressOf(entry.page)},
        {"name", shortened(entry.name.empty() ? "Monitor without a name" : entry.name)},
        {"serial", textView(entry.serial)},
        {"model", textView(entry.model)},
        {"when", textView(entry.when)},
        {"mark", verdictMarkView(entry.verdict.mark())},
        {"failed", std::to_string(entry.verdict.failed)},
        {"worst_mean", entry.worstMean},
        {"finding_count", std::to_string(entry.findings)},
        {"document_count", std::to_string(entry.documents)},
    };
}

View viewOf(const std::vector<FleetEntry>& entries, const ReportForm& form) {
    View::Items rows;
    for (const FleetEntry& entry : entries) {
        rows.push_back(entryOf(entry));
    }
    const LimitSet& limits = *form.limits;
    return View::Members{
        {"frame", pageFrame(form.title.empty() ? "Monitors" : form.title, fleetStyle(), fleetScript())},
        {"date", form.date},
        {"limits_title", limits.title.empty() ? limits.name : limits.title},
        {"limits_notice", limits.notice},
        {"monitor_count", counted(rows.size(), "monitor")},
        {"monitors", std::move(rows)},
    };
}

}  // namespace

FleetEntry fleetEntry(const std::vector<ReportedDocument>& documents, const ReportForm& form) {
    const ReportedDocument& latest = documents.back();
    const MonitorFigures& monitor = latest.snapshot.figures;
    const JudgedMonitor judged = judgedMonitor(monitor, *form.limits, form.mode);
    FleetEntry entry;
    entry.name = monitor.name;
    entry.serial = monitor.serial;
    entry.model = monitor.model;
    entry.when = latest.snapshot.when;
    entry.verdict = judged.verdict;
    entry.worstMean = worstMeanOf(judged);
    entry.findings = latest.findings.count();
    entry.documents = documents.size();
    return entry;
}

std::string fleetPage(const std::vector<FleetEntry>& entries, const ReportForm& form) {
    return inUTF8(filled("fleet", viewOf(entries, form)));
}

}  // namespace lv::analysis
