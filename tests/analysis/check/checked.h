#pragma once

#include <lvdata/analysis/check/check.h>

#include <tests/analysis/catalogue.h>

#include <string>
#include <vector>

namespace lv::test {

/// The findings about a text, a line each: "301 line 2 /AssetInfo/Owner: unknown element ...". Without remarks about
/// versions and additions, unless asked for.
inline std::vector<std::string> findingsIn(const std::string& text, analysis::CheckOptions options = {{"310", "312"}}) {
    std::vector<std::string> lines;
    for (const analysis::Finding& finding : analysis::check(text, catalogue(), options).listed) {
        lines.push_back(std::string(finding.rule->id) + " line " + std::to_string(finding.line) + ' ' + finding.path +
                        ": " + finding.message);
    }
    return lines;
}

}  // namespace lv::test
