#include <lvdata/analysis/report/page_frame.h>

#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {

View pageFrame(std::string_view title, const PageScript& script) {
    return View::Members{
        {"title", shortened(title, 120)}, {"style", pageStyle()},       {"picture_style", pictureStyleForPage()},
        {"script", script.text},          {"script_hash", script.hash},
    };
}

}  // namespace lv::analysis
