#include "MonitorView.h"

#include "columns.h"
#include "finding_text.h"
#include <lvdata/analysis/printable.h>

#include <lvdata/records/types.h>

#include <algorithm>
#include <cstdio>

namespace tool {
namespace {

using lv::analysis::ModeFigures;

std::string orDash(const std::string& text) {
    return text.empty() ? "-" : lv::analysis::printable(text);
}

std::string chromaticity(const ModeFigures& mode) {
    if (!mode.measuredChromaticity) {
        return "n/a";
    }
    const auto coordinate = [](double value) {
        return lv::analysis::Figure{value, ""}.text(4);
    };
    return "x " + coordinate(mode.measuredChromaticity->x) + " y " + coordinate(mode.measuredChromaticity->y);
}

/// A table has no room for reasons.
std::string numberAlone(const lv::analysis::Figure& figure, int decimals) {
    return figure.value ? figure.text(decimals) : "n/a";
}

std::string withUnit(const std::string& head, const std::string& unit) {
    return unit.empty() ? head : head + ' ' + lv::analysis::printable(unit);
}

std::string modeTable(const std::vector<ModeFigures>& modes, std::size_t most, const MonitorViewForm& form,
                      const Palette& palette) {
    Columns columns({"Mode", "Name", "Target white", "Measured white", "Δu'v'", "Brightness",
                     withUnit("Measured Y", form.yUnit), "Gamma", "Calibrated"});
    for (std::size_t index = 0; index < most; ++index) {
        const ModeFigures& mode = modes[index];
        columns.add({orDash(mode.index), orDash(mode.name), orDash(mode.targetWhite), chromaticity(mode),
                     numberAlone(mode.deltaUV, 4), orDash(mode.targetBrightness), numberAlone(mode.measuredY, 2),
                     orDash(mode.targetGamma), orDash(mode.calibratedTime)});
    }
    const std::string more =
        most < modes.size() ? "and " + counted(modes.size() - most, "more mode") + " (--all)\n" : "";
    return columns.text(palette) + more;
}

std::string identity(const lv::MonitorInfo& monitor) {
    const lv::MonitorConfiguration& configuration = monitor.monitorConfiguration.value;
    std::string text =
        configuration.name.hasValue ? lv::analysis::printable(configuration.name.value) : "Monitor without a name";
    text += configuration.model.hasValue ? ", " + lv::analysis::printable(configuration.model.value) : "";
    text += configuration.serial.hasValue ? ", serial " + lv::analysis::printable(configuration.serial.value) : "";
    return text + '\n';
}

void addLine(std::string& text, const std::string& name, const std::string& value) {
    constexpr std::size_t width = 14;
    text += value.empty() ? "" : name + std::string(width - characterCount(name), ' ') + value + '\n';
}

std::string assets(const lv::AssetInfo& info) {
    std::string text;
    for (const auto* asset : {&info.asset1, &info.asset2, &info.asset3, &info.asset4, &info.asset5, &info.asset6,
                              &info.asset7, &info.asset8}) {
        text += asset->hasValue && !asset->value.empty()
                    ? (text.empty() ? "" : ", ") + lv::analysis::printable(asset->value)
                    : "";
    }
    return text;
}

std::string kindOf(unsigned int type) {
    namespace schedule = lv::types::schedule;
    switch (type) {
    case schedule::once:
        return "once";
    case schedule::daily:
        return "daily";
    case schedule::weekly:
        return "weekly";
    case schedule::monthly:
        return "monthly";
    case schedule::quarterly:
        return "quarterly";
    case schedule::halfYearly:
        return "half-yearly";
    case schedule::yearly:
        return "yearly";
    case schedule::everySomeMonths:
        return "every some months";
    case schedule::everySomeWeeks:
        return "every some weeks";
    case schedule::everySomeHours:
    case schedule::everySomeHours1F:
        return "every some hours";
    default:
        return "kind " + std::to_string(type);
    }
}

std::string schedule(const lv::SelfCalibrationSchedule& schedule) {
    return schedule.type.hasValue ? kindOf(schedule.type.value) : "";
}

std::string correlation(const lv::CorrelationInfo& info) {
    std::string text = info.correlationDate.hasValue ? lv::analysis::printable(info.correlationDate.value) : "";
    text += info.referenceSensorSerial.hasValue
                ? ", sensor " + lv::analysis::printable(info.referenceSensorSerial.value)
                : "";
    return text;
}

std::string contents(const lv::MonitorInfo& monitor, const std::vector<ModeFigures>& modes) {
    std::size_t measurements = monitor.standardModeResult.value.measurementData.objects.size();
    for (const ModeFigures& mode : modes) {
        measurements += mode.measurements;
    }
    std::string text = counted(monitor.calibrationModeResult.value.objects.size(), "calibration") + ", " +
                       counted(measurements, "measurement");
    const auto& map = monitor.candelaMap.value;
    const std::size_t entries = std::max(map.uniformity.values.size(), map.brightness.values.size());
    return text + (monitor.candelaMap.hasValue
                       ? ", candela maps of " + (entries == 1 ? "1 entry" : std::to_string(entries) + " entries")
                       : "");
}

std::string notes(const std::string& yUnit) {
    const std::string unit = yUnit.empty() ? " The records do not say the unit of Y (--y-unit)." : "";
    return "Δu'v': CIE 1976 UCS diagram, CIE 1931 2° observer, target white against measured white." + unit + '\n';
}

}  // namespace

std::string monitorView(const lv::MonitorInfo& monitor, const MonitorViewForm& form, const Palette& palette) {
    const lv::MonitorConfiguration& configuration = monitor.monitorConfiguration.value;
    const auto modes =
        lv::analysis::modeFigures(configuration.colorModeSettings.value, monitor.calibrationModeResult.value);
    std::string text = palette.paint(Style::heading, identity(monitor));
    addLine(text, "UUID", monitor.uuid.hasValue ? lv::analysis::printable(monitor.uuid.value) : "");
    addLine(text, "Assets", assets(monitor.assetInfo.value));
    addLine(text, "Schedule", schedule(configuration.selfCalibrationSchedule.value));
    addLine(text, "Correlation", correlation(monitor.correlationInfo.value));
    addLine(text, "Holds", contents(monitor, modes));
    if (!modes.empty()) {
        text += '\n' + modeTable(modes, std::min(modes.size(), form.mostModes), form, palette) +
                "n/a: lvdata show --mode N says why. " + notes(form.yUnit);
    }
    return text;
}

std::string modeView(const ModeFigures& mode, const std::string& yUnit, const Palette& palette) {
    std::string text = palette.paint(Style::heading, "Mode " + orDash(mode.index) + ", " + orDash(mode.name)) + '\n';
    addLine(text, "Type", orDash(mode.type));
    addLine(text, "Calibrated", orDash(mode.calibratedTime));
    Columns columns({"", "Target", "Measured"});
    columns.add({"White", orDash(mode.targetWhite), chromaticity(mode)});
    columns.add({withUnit("Brightness, Y", yUnit), orDash(mode.targetBrightness), mode.measuredY.text(4)});
    columns.add({"Gamma", orDash(mode.targetGamma), "-"});
    columns.add({"Gamut", orDash(mode.targetGamut), "-"});
    text += columns.text(palette);
    addLine(text, "Δu'v'", mode.deltaUV.text(4));
    addLine(text, "Contrast", mode.contrast.text(0));
    addLine(text, "Measurements", std::to_string(mode.measurements));
    return text + notes(yUnit);
}

}  // namespace tool
