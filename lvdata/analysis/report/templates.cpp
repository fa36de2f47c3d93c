#include <lvdata/analysis/report/templates.h>

#include <lvdata/analysis/pictures/pictures.h>

#include <embedded/report_templates.h>

namespace lv::analysis {

const std::vector<std::pair<std::string_view, std::string_view>>& templates() {
    using namespace embedded::report_templates;
    static const std::vector<std::pair<std::string_view, std::string_view>> all = {
        {"contents.html", contents_html}, {"data.html", data_html},
        {"fleet.html", fleet_html},       {"figure_groups.html", figure_groups_html},
        {"gamut.html", gamut_html},       {"head.html", head_html},
        {"history.html", history_html},   {"mark.html", mark_html},
        {"mode.html", mode_html},         {"patches.html", patches_html},
        {"quality.html", quality_html},   {"report.html", report_html},
        {"summary.html", summary_html},   {"tables.html", tables_html},
        {"text.html", text_html},         {"tone.html", tone_html},
        {"top.html", top_html},           {"uniformity.html", uniformity_html},
        {"verdict.html", verdict_html},
    };
    return all;
}

std::string reportStyle() {
    return std::string(embedded::report_templates::page_css) + pictureStyleForPage();
}

std::string fleetStyle() {
    return std::string(embedded::report_templates::page_css) + std::string(embedded::report_templates::fleet_css);
}

PageScript reportScript() {
    return {embedded::report_templates::report_js, LVDATA_REPORT_SCRIPT_HASH};
}

PageScript fleetScript() {
    return {embedded::report_templates::fleet_js, LVDATA_FLEET_SCRIPT_HASH};
}

}  // namespace lv::analysis
