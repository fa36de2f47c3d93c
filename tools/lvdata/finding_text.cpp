#include "finding_text.h"

#include <lvdata/analysis/printable.h>

namespace tool {
namespace {

using lv::analysis::Finding;
using lv::analysis::Severity;

Style styleOf(Severity severity) {
    switch (severity) {
    case Severity::error:
        return Style::error;
    case Severity::warning:
        return Style::warning;
    case Severity::info:
        break;
    }
    return Style::faint;
}

std::string placeOf(const Finding& finding) {
    return finding.line > 0 ? "line " + std::to_string(finding.line) + ": " : "";
}

std::string idOf(const Finding& finding) {
    return " [" + std::string(finding.rule->id) + ']';
}

}  // namespace

std::string lineOf(const std::string& name, const Finding& finding) {
    return name + ": " + std::string(nameOf(finding.severity)) + ": " + placeOf(finding) + finding.message +
           idOf(finding);
}

std::string lineOf(const std::string& name, const Finding& finding, const Palette& palette) {
    const std::string path =
        finding.path.empty() ? "" : ' ' + palette.paint(Style::faint, lv::analysis::printable(finding.path));
    return palette.paint(Style::name, lv::analysis::printable(name)) + ": " +
           palette.paint(styleOf(finding.severity), nameOf(finding.severity)) + ": " + placeOf(finding) +
           lv::analysis::printable(finding.message) + idOf(finding) + path + '\n';
}

std::string counted(std::size_t count, const std::string& thing) {
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

}  // namespace tool
