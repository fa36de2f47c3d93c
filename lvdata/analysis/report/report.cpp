#include <lvdata/analysis/report/report.h>

#include <lvdata/analysis/files/files.h>
#include <lvdata/analysis/pictures/pictures.h>
#include <lvdata/analysis/report/filling.h>
#include <lvdata/analysis/report/page_frame.h>
#include <lvdata/analysis/report/sections.h>
#include <lvdata/analysis/utf8.h>

#include <utility>

namespace lv::analysis {
namespace {

std::string titleOf(const ReportContents& contents) {
    const std::string& name = contents.latest().snapshot.figures.name;
    return !contents.form.title.empty() ? contents.form.title : !name.empty() ? name : "Monitor without a name";
}

View modesOf(const ReportContents& contents) {
    View::Items modes;
    for (const ReportedMode& mode : contents.judged.calibrated) {
        modes.push_back(modeView(contents, mode));
    }
    return modes;
}

View viewOf(const ReportContents& contents) {
    return View::Members{
        {"frame", pageFrame(titleOf(contents), reportStyle(), reportScript())},
        {"head_section", headView(contents)},
        {"summary_section", summaryView(contents)},
        {"modes", modesOf(contents)},
        {"uniformity_section", uniformityView(contents)},
        {"history_section", historyView(contents)},
        {"quality_section", qualityView(contents.latest().findings)},
        {"data_section", dataView(contents)},
        {"picture_parts", contents.parts.definitions()},  // after all pictures
    };
}

}  // namespace

std::string reportPage(const std::vector<ReportedDocument>& documents, const ReportForm& form) {
    svg::SharedParts parts;
    ReportContents contents{documents, form, parts, {}};
    contents.judged = judgedMonitor(contents.latest().snapshot.figures, contents.limits(), form.mode);
    for (ReportedMode& mode : contents.judged.calibrated) {
        mode.parts = &parts;
    }
    return inUTF8(filled("report", viewOf(contents)));
}

std::string whyNotOverwritten(const std::filesystem::path& file) {
    constexpr std::size_t beginning = 4096;
    const FileContent content = readFile(file, beginning);
    const bool isPage = content.text.find(R"(<meta name="generator" content="lvdata">)") != std::string::npos;
    return !content || isPage ? "" : "not overwritten, since it is not a page that lvdata made";
}

}  // namespace lv::analysis
