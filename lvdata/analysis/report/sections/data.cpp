#include <lvdata/analysis/report/filling.h>
#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

View documentOf(const ReportedDocument& document) {
    return View::Members{
        {"name", textView(document.snapshot.document, "(unnamed)")},
        {"when", textView(document.snapshot.when)},
    };
}

}  // namespace

View dataView(const ReportContents& contents) {
    View::Items documents;
    for (const ReportedDocument& document : contents.documents) {
        documents.push_back(documentOf(document));
    }
    return View::Members{
        {"documents", std::move(documents)},
        {"data_json", escapedForScript(contents.latest().json)},
    };
}

}  // namespace lv::analysis
