#pragma once

#include <lvdata/analysis/report/View.h>
#include <lvdata/analysis/report/templates.h>

#include <string_view>

namespace lv::analysis {

/// The frame of every page: title, style, script and the policy that forbids the page to load or send anything.
[[nodiscard]] View pageFrame(std::string_view title, std::string_view style, const PageScript& script);

}  // namespace lv::analysis
