#include <lvdata/analysis/report/page_frame.h>

#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/sections.h>
#include <lvdata/analysis/report/templates.h>

namespace lv::analysis {

View pageFrame(std::string_view title) {
    return View::Members{
        {"title", shortened(title, 120)},         {"style", pageStyle()},
        {"picture_style", pictureStyleForPage()},        {"script", pageScript()},
        {"script_hash", LVDATA_PAGE_SCRIPT_HASH},
    };
}

}  // namespace lv::analysis
