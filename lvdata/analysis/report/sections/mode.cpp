#include <lvdata/analysis/report/sections.h>

namespace lv::analysis {
namespace {

/// "LV-Sensor, serial number 12".
std::string deviceText(const std::string& name, const std::string& serial) {
    const std::string number = serial.empty() ? "" : "serial number " + serial;
    return name + (name.empty() || number.empty() ? "" : ", ") + number;
}

class Facts {
public:
    void add(const char* label, std::string_view text) {
        if (!text.empty()) {
            items_.push_back(View::Members{{"label", label}, {"value", textView(text)}});
        }
    }

    [[nodiscard]] View::Items take() && { return std::move(items_); }

private:
    View::Items items_{};
};

void addList(View::Members& members, const std::string& name, View::Items items) {
    members.push_back({"has_" + name, !items.empty()});
    members.push_back({name, std::move(items)});
}

View::Items targetsOf(const ModeFigures& mode) {
    Facts facts;
    facts.add("Brightness", mode.targetBrightness);
    facts.add("Black", mode.targetBlack);
    facts.add("White", mode.targetWhite);
    facts.add("White by standard", mode.targetWhiteStandard);
    facts.add("Tone curve", mode.targetGamma);
    facts.add("Gamut", mode.targetGamut);
    return std::move(facts).take();
}

View::Items measurementOf(const ModeFigures& mode) {
    const MeasuredBy& by = mode.measuredBy;
    Facts facts;
    facts.add("Calibrated", mode.calibratedTime);
    facts.add("Sensor", deviceText(by.sensorName, by.sensorSerial));
    facts.add("Correlated with", deviceText(by.referenceName, by.referenceSerial));
    facts.add("Date of correlation", by.correlationDate);
    facts.add("Software", by.software);
    facts.add("Executed by", by.executor);
    facts.add("Executed on", by.executedDate);
    facts.add("Hours of use", by.usageHours);
    facts.add("Measurements", mode.measurements == 0 ? "" : std::to_string(mode.measurements));
    return std::move(facts).take();
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
