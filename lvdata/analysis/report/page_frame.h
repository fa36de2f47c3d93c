#pragma once

#include <lvdata/analysis/report/View.h>

#include <string_view>

namespace lv::analysis {

/// What every page has around its sections: title, style, script and the policy that lets nothing leave the page.
[[nodiscard]] View pageFrame(std::string_view title);

}  // namespace lv::analysis
