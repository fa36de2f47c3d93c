#include "MonitorView.h"

#include "columns.h"
#include "finding_text.h"

#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/printable.h>

#include <lvdata/records/types.h>

#include <algorithm>

namespace tool {
namespace {

using lv::analysis::Figure;
using lv::analysis::FigureLine;
using lv::analysis::ModeFigures;
using lv::analysis::printable;

constexpr std::size_t labelWidth = 14;

void addLine(std::string& text, const std::string& name, const std::string& value) {
    text += value.empty() ? "" : name + std::string(labelWidth - characterCount(name), ' ') + value + '\n';
}

void addItem(std::string& list, const std::string& item) {
    list += item.empty() ? "" : (list.empty() ? "" : ", ") + item;
}

std::string orDash(const std::string& text) {
    return text.empty() ? "-" : printable(text);
}

/// A cell of the table of modes.
std::string cell(const std::string& text, std::size_t mostCharacters = 16) {
    return shortened(orDash(text), mostCharacters);
}

/// x and y without their names: a table has no room for them.
std::string coordinates(const lv::analysis::colour::Chromaticity& white) {
    return Figure{white.x, ""}.text(4) + ' ' + Figure{white.y, ""}.text(4);
}

/// A table has no room for reasons.
std::string numberAlone(const Figure& figure, int decimals) {
    return figure.value ? figure.text(decimals) : "n/a";
}

std::string withUnit(const std::string& text, const std::string& unit) {
    return unit.empty() ? text : text + ' ' + printable(unit);
}

/// The day of a time such as "2024-05-02T09:31:00"; other texts as they are.
std::string dayOf(const std::string& time) {
    constexpr std::size_t dayLength = 10;
    return time.size() > dayLength && time[dayLength] == 'T' ? time.substr(0, dayLength) : time;
}

std::vector<std::string> rowOf(const ModeFigures& mode) {
    const std::string target = mode.targetChromaticity ? coordinates(*mode.targetChromaticity) : mode.targetWhite;
    return {cell(mode.index),
            cell(mode.name, 20),
            cell(target.empty() ? mode.targetWhiteStandard : target),
            mode.measuredChromaticity ? coordinates(*mode.measuredChromaticity) : "n/a",
            numberAlone(mode.deltaUV, 4),
            cell(mode.targetBrightness),
            numberAlone(mode.measuredY, 2),
            cell(mode.targetGamma),
            cell(dayOf(mode.calibratedTime))};
}

std::string noteOnUnit(const std::string& yUnit) {
    return yUnit.empty() ? "Y: CIE 1931 tristimulus value; the records do not state its unit (--y-unit).\n" : "";
}

std::string noteOnDifference() {
    return "Δu'v': between target white and measured white, CIE 1976 UCS diagram, CIE 1931 2° observer.\n";
}

std::string notes(const std::vector<ModeFigures>& modes, const std::string& yUnit) {
    const auto any = [&](auto isSo) {
        return std::any_of(modes.begin(), modes.end(), isSo);
    };
    const bool hasWhite = any([](const ModeFigures& mode) { return mode.measuredWhite.has_value(); });
    const bool hasDifference = any([](const ModeFigures& mode) { return mode.deltaUV.value.has_value(); });
    const bool hasMissing = any([](const ModeFigures& mode) { return !mode.deltaUV.value; });
    return (hasWhite ? "Measured: CIE 1931 x and y of white.\n" + noteOnUnit(yUnit) : "") +
           (hasDifference ? noteOnDifference() : "") +
           (hasMissing ? "n/a: not available; --mode N gives the reason.\n" : "");
}

std::string modeTable(const std::vector<ModeFigures>& modes, const MonitorViewForm& form, const Palette& palette) {
    Columns columns({"Mode", "Name", "Target white", "Measured", "Δu'v'", "Brightness", withUnit("Y", form.yUnit),
                     "Gamma", "Calibrated"},
                    {4, 6});
    const std::size_t most = std::min(modes.size(), form.mostModes);
    for (std::size_t index = 0; index < most; ++index) {
        columns.add(rowOf(modes[index]));
    }
    const std::string more =
        most < modes.size() ? "and " + counted(modes.size() - most, "more mode") + " (--all)\n" : "";
    return columns.text(palette) + more;
}

std::string identity(const lv::MonitorConfiguration& configuration, const std::string& otherwise) {
    std::string text = configuration.name.hasValue ? printable(configuration.name.value) : "";
    addItem(text, configuration.model.hasValue ? printable(configuration.model.value) : "");
    const bool hasSerial = configuration.serial.hasValue && !configuration.serial.value.empty();
    addItem(text, hasSerial ? "serial " + printable(configuration.serial.value) : "");
    return text.empty() ? otherwise : text;
}

std::string assets(const lv::AssetInfo& info) {
    std::string text;
    for (const auto* asset : {&info.asset1, &info.asset2, &info.asset3, &info.asset4, &info.asset5, &info.asset6,
                              &info.asset7, &info.asset8}) {
        addItem(text, asset->hasValue ? printable(asset->value) : "");
    }
    return text;
}

std::string interval(const lv::property<unsigned int>& length, const std::string& unit) {
    return length.hasValue ? "every " + counted(length.value, unit) : "every N " + unit + 's';
}

std::string schedule(const lv::SelfCalibrationSchedule& schedule) {
    namespace kinds = lv::types::schedule;
    switch (schedule.type.value) {
    case kinds::once:
        return "once";
    case kinds::daily:
        return "daily";
    case kinds::weekly:
        return "weekly";
    case kinds::monthly:
        return "monthly";
    case kinds::quarterly:
        return "quarterly";
    case kinds::halfYearly:
        return "half-yearly";
    case kinds::yearly:
        return "yearly";
    case kinds::everySomeMonths:
        return interval(schedule.intervalMonth, "month");
    case kinds::everySomeWeeks:
        return interval(schedule.intervalWeek, "week");
    case kinds::everySomeHours:
    case kinds::everySomeHours1F:
        return interval(schedule.intervalHour, "hour");
    default:
        return "unknown kind " + std::to_string(schedule.type.value);
    }
}

std::string correlation(const lv::CorrelationInfo& info) {
    std::string text = info.correlationDate.hasValue ? printable(info.correlationDate.value) : "";
    const bool hasSerial = info.referenceSensorSerial.hasValue && !info.referenceSensorSerial.value.empty();
    addItem(text, hasSerial ? "sensor " + printable(info.referenceSensorSerial.value) : "");
    return text;
}

std::size_t measurementsOf(const lv::MonitorInfo& monitor, const std::vector<ModeFigures>& modes) {
    const lv::StandardModeResult& standard = monitor.standardModeResult.value;
    std::size_t count = standard.measurementData.objects.size() + standard.measurementDataSecondary.objects.size();
    for (const ModeFigures& mode : modes) {
        count += mode.measurements;
    }
    return count;
}

std::string mapOf(const std::string& name, const lv::CandelaMapEntry& map) {
    const std::size_t count = map.values.size();
    return count == 0 ? "" : name + " map of " + (count == 1 ? "1 entry" : std::to_string(count) + " entries");
}

std::string contents(const lv::MonitorInfo& monitor, const std::vector<ModeFigures>& modes) {
    const std::size_t calibrations = monitor.calibrationModeResult.value.objects.size();
    const std::size_t measurements = measurementsOf(monitor, modes);
    std::string text = calibrations == 0 ? "" : counted(calibrations, "calibration");
    addItem(text, measurements == 0 ? "" : counted(measurements, "measurement"));
    addItem(text, mapOf("uniformity", monitor.candelaMap.value.uniformity));
    addItem(text, mapOf("brightness", monitor.candelaMap.value.brightness));
    return text;
}

/// The coordinates with the name of the standard: "x 0.3127 y 0.3290 (D65)".
std::string targetWhite(const ModeFigures& mode) {
    const std::string& standard = mode.targetWhiteStandard;
    if (mode.targetWhite.empty() || standard.empty()) {
        return mode.targetWhite + standard;
    }
    return mode.targetWhite + " (" + standard + ')';
}

/// What a mode was set to, in words: "brightness 120, white x 0.3127 y 0.3290 (D65), gamma 2.2".
std::string targets(const ModeFigures& mode) {
    std::string text;
    const auto add = [&text](const std::string& name, const std::string& value) {
        addItem(text, value.empty() ? "" : name + ' ' + printable(value));
    };
    add("brightness", mode.targetBrightness);
    add("white", targetWhite(mode));
    add("black", mode.targetBlack);
    add("gamma", mode.targetGamma);
    add("gamut", mode.targetGamut);
    return text;
}

/// A table of the figures, under a heading for each group.
std::string figureTable(const std::vector<FigureLine>& lines, const Palette& palette) {
    Columns columns({"", "Target", "Measured", "Difference"});
    std::string group;
    for (const FigureLine& line : lines) {
        if (line.group != group) {
            group = line.group;
            columns.add({group, "", "", ""});
        }
        const std::string target = line.targetText.empty() ? line.text(line.target) : printable(line.targetText);
        const std::string unit = line.unit.empty() ? "" : " (" + printable(line.unit) + ')';
        columns.add({"  " + line.label + unit, target, line.text(line.measured), line.text(line.difference)});
    }
    return columns.text(palette);
}

}  // namespace

std::string monitorView(const lv::MonitorInfo& monitor, const MonitorViewForm& form, const Palette& palette) {
    const lv::MonitorConfiguration& configuration = monitor.monitorConfiguration.value;
    const auto modes =
        lv::analysis::modeFigures(configuration.colorModeSettings.value, monitor.calibrationModeResult.value);
    const auto& type = configuration.selfCalibrationSchedule.value.type;
    std::string text = palette.paint(Style::heading, identity(configuration, form.title)) + '\n';
    addLine(text, "UUID", monitor.uuid.hasValue ? printable(monitor.uuid.value) : "");
    addLine(text, "Assets", assets(monitor.assetInfo.value));
    addLine(text, "Schedule", type.hasValue ? schedule(configuration.selfCalibrationSchedule.value) : "");
    addLine(text, "Correlation", correlation(monitor.correlationInfo.value));
    addLine(text, "Holds", contents(monitor, modes));
    return modes.empty() ? text : text + '\n' + modeTable(modes, form, palette) + '\n' + notes(modes, form.yUnit);
}

std::string modeView(const ModeFigures& mode, const lv::analysis::KnownUnits& units, const Palette& palette) {
    std::string text = palette.paint(Style::heading, "Mode " + orDash(mode.index) + ", " + orDash(mode.name)) + '\n';
    addLine(text, "Type", orDash(mode.type));
    addLine(text, "Calibrated", orDash(mode.calibratedTime));
    addLine(text, "Target", targets(mode));
    text += '\n' + figureTable(figureLines(mode, units), palette);
    return text + '\n' + (mode.deltaUV.value ? noteOnDifference() : "") +
           (mode.measuredY.value ? noteOnUnit(units.yUnit) : "");
}

}  // namespace tool
