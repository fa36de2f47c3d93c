#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

View factsOf(const ReportContents& contents) {
    const MonitorFigures& monitor = contents.latest().snapshot.figures;
    View::Items facts;
    addFact(facts, "Monitor", monitor.name);
    addFact(facts, "Model", monitor.model);
    addFact(facts, "Serial number", monitor.serial);
    addFact(facts, "UUID", monitor.uuid);
    for (const std::string& asset : monitor.assets) {
        addFact(facts, "Asset", asset);
    }
    addFact(facts, "Last calibration", contents.latest().snapshot.when);
    addFact(facts, "Document", contents.latest().snapshot.document);
    addFact(facts, "Date of this report", contents.form.date);
    return facts;
}

}  // namespace

View headView(const ReportContents& contents) {
    return View::Members{{"facts", factsOf(contents)}};
}

}  // namespace lv::analysis
