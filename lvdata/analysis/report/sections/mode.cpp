#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

/// "LV-Sensor, serial number 12".
std::string deviceText(const std::string& name, const std::string& serial) {
    const std::string number = serial.empty() ? "" : "serial number " + serial;
    return name + (name.empty() || number.empty() ? "" : ", ") + number;
}

void addList(View::Members& members, const std::string& name, View::Items items) {
    members.push_back({"has_" + name, !items.empty()});
    members.push_back({name, std::move(items)});
}

View::Items targetsOf(const ModeFigures& mode) {
    View::Items facts;
    addFact(facts, "Brightness", mode.targetBrightness);
    addFact(facts, "Black", mode.targetBlack);
    addFact(facts, "White", mode.targetWhite);
    addFact(facts, "White by standard", mode.targetWhiteStandard);
    addFact(facts, "Tone curve", mode.targetGamma);
    addFact(facts, "Gamut", mode.targetGamut);
    return facts;
}

View::Items measurementOf(const ModeFigures& mode) {
    const MeasuredBy& by = mode.measuredBy;
    View::Items facts;
    addFact(facts, "Calibrated", mode.calibratedTime);
    addFact(facts, "Sensor", deviceText(by.sensorName, by.sensorSerial));
    addFact(facts, "Correlated with", deviceText(by.referenceName, by.referenceSerial));
    addFact(facts, "Date of correlation", by.correlationDate);
    addFact(facts, "Software", by.software);
    addFact(facts, "Executed by", by.executor);
    addFact(facts, "Executed on", by.executedDate);
    addFact(facts, "Hours of use", by.usageHours);
    addFact(facts, "Measurements", mode.measurements == 0 ? "" : std::to_string(mode.measurements));
    return facts;
}

}  // namespace

View modeView(const ReportContents& contents, const ReportedMode& mode) {
    View::Members members = {
        {"mode_id", mode.id},
        {"mode_title", shortened(mode.figures->name)},
        {"mode_name", textView(mode.figures->name)},
        {"mode_type", shortened(mode.figures->type)},
        {"mode_index", shortened(mode.figures->index)},
        {"verdict_section", verdictView(contents, mode)},
        {"gamut_section", gamutView(mode)},
        {"tone_section", toneView(mode)},
        {"patches_section", patchesView(mode, contents.limits())},
        {"tables_section", tablesView(mode)},
    };
    addList(members, "targets", targetsOf(*mode.figures));
    addList(members, "measurement", measurementOf(*mode.figures));
    return members;
}

}  // namespace lv::analysis
