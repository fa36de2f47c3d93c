#include <lvdata/analysis/report/page_frame.h>

#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {

View pageFrame(std::string_view title, std::string_view style, const PageScript& script) {
    return View::Members{
        {"title", shortened(title, 120)},
        {"style", style},
        {"script", script.text},
        {"script_hash", script.hash},
    };
}

}  // namespace lv::analysis
