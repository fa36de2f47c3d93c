#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>

#include <optional>

namespace lv::analysis {
namespace {

struct CurveRow {
    const Parts& parts;
    std::string_view kind;
    std::string_view type;
    std::string_view channel;
    std::optional<std::size_t> entry;
    unsigned int value;
    const Quantity& quantity;
};

const std::vector<ColumnOf<CurveRow>>& columns() {
    static const std::vector<ColumnOf<CurveRow>> all = withOrigin<CurveRow>({
        {{"kind", "", "monitor_table: a look-up table of the monitor; target_curve: the intended tone curve"},
         [](const CurveRow& row, Cell& cell) {
             cell.text(row.kind);
         }},
        {{"type", "", "how the curve is given: Lut, or Formula for one parameter"},
         [](const CurveRow& row, Cell& cell) {
             cell.text(row.type);
         }},
        {{"channel", "", "red, green or blue"},
         [](const CurveRow& row, Cell& cell) {
             cell.text(row.channel);
         }},
        {{"entry", "", "which entry, counted from 0; empty for the parameter of a formula", Values::integer},
         [](const CurveRow& row, Cell& cell) {
             row.entry ? cell.count(*row.entry) : void();
         }},
        {{"value", "", "the entry as a fraction, or the parameter, whose meaning is not recorded", Values::fraction},
         [](const CurveRow& row, Cell& cell) {
             cell.number(row.value, row.quantity);
         }},
    });
    return all;
}

void addTable(CurveRow row, const std::vector<unsigned int>& entries, Sink& sink) {
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        row.entry = entry;
        row.value = entries[entry];
        addRow(columns(), row, sink);
    }
}

void addMonitorTables(const Parts& parts, const MonitorParameter& parameter, Sink& sink) {
    const Quantity& quantity = parameter.tableQuantity();
    const auto add = [&](std::string_view channel, const property<std::vector<unsigned int>>& table) {
        if (table.hasValue) {
            addTable({parts, "monitor_table", "Lut", channel, std::nullopt, 0, quantity}, table.value, sink);
        }
    };
    add("red", parameter.redLUT);
    add("green", parameter.greenLUT);
    add("blue", parameter.blueLUT);
}

void addTargetCurves(const Parts& parts, const ProfileData& profile, Sink& sink) {
    const auto add = [&](std::string_view channel, const property<ProfileData::target_curve>& curve) {
        const CurveRow row{parts,        "target_curve",      curve.value.type,          channel,
                           std::nullopt, curve.value.formula, quantities::curveParameter};
        if (curve.hasValue && curve.value.type == "Formula") {
            addRow(columns(), row, sink);
        } else if (curve.hasValue && curve.value.type == "Lut") {
            addTable({parts, row.kind, row.type, channel, std::nullopt, 0, quantities::curveEntry}, curve.value.lut,
                     sink);
        }
    };
    add("red", profile.redTargetCurve);
    add("green", profile.greenTargetCurve);
    add("blue", profile.blueTargetCurve);
}

void addMode(const Parts& parts, const CalibrationModeResultObject& mode, Sink& sink) {
    Parts ofMode = parts;
    ofMode.modeIndex = &mode.index;
    if (mode.hasMonitorParameter) {
        addMonitorTables(ofMode, mode.monitorParameter, sink);
    }
    if (mode.hasProfileData) {
        addTargetCurves(ofMode, mode.profileData, sink);
    }
}

}  // namespace

std::vector<Column> curveColumns() {
    return columnsOf(columns());
}

void addCurveRows(const Parts& parts, Sink& sink) {
    if (parts.parameter != nullptr) {
        addMonitorTables(parts, *parts.parameter, sink);
    }
    if (parts.profile != nullptr) {
        addTargetCurves(parts, *parts.profile, sink);
    }
    if (parts.results != nullptr) {
        for (const CalibrationModeResultObject& mode : parts.results->objects) {
            addMode(parts, mode, sink);
        }
    }
}

}  // namespace lv::analysis
