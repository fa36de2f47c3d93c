#pragma once

#include <lvdata/analysis/report/View.h>
#include <lvdata/analysis/report/templates.h>

#include <string_view>

namespace lv::analysis {

/// What every page has around its sections: title, style, script and the policy that lets nothing leave the page.
[[nodiscard]] View pageFrame(std::string_view title, std::string_view style, const PageScript& script);

}  // namespace lv::analysis
