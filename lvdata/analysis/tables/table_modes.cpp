#include <lvdata/analysis/figures/lines.h>
#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lv::analysis {
namespace {

using ModeResult = CalibrationModeResultObject;
using ModeSettings = ColorModeSettingsObject;

/// A mode: its settings, its target and its result; null for missing parts.
struct ModeRow {
    const Parts& parts;
    const ModeSettings* settings = nullptr;
    const ModeResult* result = nullptr;
    const TargetSetting* target = nullptr;
    const ParameterSetting* parameters = nullptr;
    const BasicData* basic = nullptr;
    std::vector<FigureLine> figures{};  // empty without a result
};

/// The texts that both lists of modes have: that of the settings, or else of the result.
template <class Settings, class Result>
void giveEither(const ModeRow& row, Cell& cell, Settings inSettings, Result inResult) {
    if (row.settings != nullptr && (row.settings->*inSettings).hasValue) {
        cell.text(row.settings->*inSettings);
    } else if (row.result != nullptr) {
        cell.text(row.result->*inResult);
    }
}

void giveType(const ModeRow& row, Cell& cell) {
    giveEither(row, cell, &ModeSettings::type, &ModeResult::type);
}

void giveName(const ModeRow& row, Cell& cell) {
    giveEither(row, cell, &ModeSettings::name, &ModeResult::name);
}

const TargetSetting::white_point_t* targetWhite(const ModeRow& row) {
    return row.target == nullptr ? nullptr : valueOf(row.target->whitePoint);
}

void giveBrightness(const ModeRow& row, Cell& cell) {
    const auto* const target = row.target == nullptr ? nullptr : valueOf(row.target->brightness);
    const auto* const set = row.parameters == nullptr ? nullptr : valueOf(row.parameters->brightness);
    if (target != nullptr && target->type == "Value") {
        cell.number(target->value, quantities::number);
    } else if (set != nullptr && (set->type == "Candela" || set->type == "Percent")) {
        cell.number(set->value, quantities::number);
    }
}

void giveBrightnessType(const ModeRow& row, Cell& cell) {
    const auto* const target = row.target == nullptr ? nullptr : valueOf(row.target->brightness);
    const auto* const set = row.parameters == nullptr ? nullptr : valueOf(row.parameters->brightness);
    if (target != nullptr || set != nullptr) {
        cell.text(target != nullptr ? target->type : set->type);
    }
}

template <unsigned int TargetSetting::white_point_t::*Coordinate>
void giveWhite(const ModeRow& row, Cell& cell) {
    const auto* const white = targetWhite(row);
    if (white != nullptr && white->type == "Coordinate") {
        cell.number(white->*Coordinate, quantities::chromaticity);
    }
}

void giveTemperature(const ModeRow& row, Cell& cell) {
    const auto* const white = targetWhite(row);
    const auto* const set = row.parameters == nullptr ? nullptr : valueOf(row.parameters->whitePoint);
    if (white != nullptr && white->type == "Temperature") {
        cell.number(white->temperature, quantities::number);
    } else if (set != nullptr && set->type == "Temperature") {
        cell.number(set->temperature, quantities::number);
    }
}

/// The name of a standard, or else the type.
void giveStandard(const property<TargetSetting::standard_t>& standard, Cell& cell) {
    if (standard.hasValue) {
        cell.text(standard.value.type == "Standard" ? standard.value.standard : standard.value.type);
    }
}

void giveFixed(const std::string& type, const std::string& fixed, Cell& cell) {
    cell.text(type == "Fixed" ? fixed : type);
}

void giveGamma(const ModeRow& row, Cell& cell) {
    const auto* const set = row.parameters == nullptr ? nullptr : valueOf(row.parameters->gamma);
    if (row.target != nullptr) {
        giveStandard(row.target->gammaV7, cell);
    } else if (set != nullptr && set->type == "Value") {
        DecimalBuffer buffer{};
        cell.text(naturalText(std::to_string(set->value), decimalsOf(quantities::gamma.factor), buffer));
    } else if (set != nullptr) {
        giveFixed(set->type, set->fixed, cell);
    }
}

void giveGamut(const ModeRow& row, Cell& cell) {
    const auto* const set = row.parameters == nullptr ? nullptr : valueOf(row.parameters->gamut);
    if (row.target != nullptr) {
        giveStandard(row.target->gamutV7, cell);
    } else if (set != nullptr) {
        giveFixed(set->type, set->fixed, cell);
    }
}

template <property<std::string> BasicData::*Member>
void giveText(const ModeRow& row, Cell& cell) {
    if (row.basic != nullptr) {
        cell.text(row.basic->*Member);
    }
}

template <property<unsigned int> BasicData::*Member>
void giveNumber(const ModeRow& row, Cell& cell) {
    if (row.basic != nullptr) {
        cell.index(row.basic->*Member);
    }
}

void giveCalibratedTime(const ModeRow& row, Cell& cell) {
    if (row.result != nullptr) {
        cell.text(row.result->calibratedTime);
    }
}

std::vector<ColumnOf<ModeRow>> settingColumns() {
    return {
        {{"type", "", "type of the mode"}, &giveType},
        {{"name", "", "name of the mode"}, &giveName},
        {{"brightness_type", "", "type of the target brightness"}, &giveBrightnessType},
        {{"brightness", notRecorded, "target brightness; % when its type is Percent", Values::integer},
         &giveBrightness},
        {{"white_x", "", "CIE 1931 x of the target white", Values::fraction},
         &giveWhite<&TargetSetting::white_point_t::x>},
        {{"white_y", "", "CIE 1931 y of the target white", Values::fraction},
         &giveWhite<&TargetSetting::white_point_t::y>},
        {{"white_temperature", notRecorded, "temperature of the target white", Values::integer}, &giveTemperature},
        {{"gamma", "", "target tone curve: a standard, a number, or the type"}, &giveGamma},
        {{"gamut", "", "target gamut: a standard, or the type"}, &giveGamut},
    };
}

std::vector<ColumnOf<ModeRow>> calibrationColumns() {
    return {
        {{"calibrated_time", "", "time of the calibration, as recorded; the format is not known"}, &giveCalibratedTime},
        {{"sensor_name", "", "name of the colour sensor"}, &giveText<&BasicData::colorSensorName>},
        {{"sensor_serial", "", "serial number of the colour sensor"}, &giveText<&BasicData::colorSensorSerial>},
        {{"usage_hours", notRecorded, "hours of use, by the name of the element", Values::integer},
         &giveNumber<&BasicData::usageHours>},
        {{"correlation_id", "", "identifier of the sensor's correlation", Values::integer},
         &giveNumber<&BasicData::colorSensorCorrelationID>},
        {{"correlation_date", "", "date of the sensor's correlation, as recorded"},
         &giveText<&BasicData::colorSensorCorrelationDate>},
    };
}

/// Figures: the name of the column is the key of the figure.
constexpr std::array<Column, 6> figureColumns = {{
    {"white_tristimulus_y", notRecorded, "CIE Y of the measured white", Values::fraction},
    {"white_cct", "K", "correlated colour temperature of the measured white", Values::fraction},
    {"white_delta_uv", "", "Δu'v' between the target white and the measured white", Values::fraction},
    {"white_delta_e2000", "", "ΔE00 between the target white and the measured white", Values::fraction},
    {"patches_delta_e2000_mean", "", "mean ΔE00 between the measured and the expected colours", Values::fraction},
    {"patches_delta_e2000_maximum", "", "greatest ΔE00 between a measured and the expected colour", Values::fraction},
}};

/// The measured value, with the usual digits of the figure.
template <std::size_t Place>
void giveFigure(const ModeRow& row, Cell& cell) {
    const auto line = std::find_if(row.figures.begin(), row.figures.end(),
                                   [](const FigureLine& each) { return each.key == figureColumns[Place].name; });
    if (line != row.figures.end()) {
        cell.figure(line->measured, line->decimals);
    }
}

template <std::size_t... Places>
void addFigureColumns(std::vector<ColumnOf<ModeRow>>& all, std::index_sequence<Places...> /*places*/) {
    (all.push_back({figureColumns[Places], &giveFigure<Places>}), ...);
}

std::vector<ColumnOf<ModeRow>> allColumns() {
    std::vector<ColumnOf<ModeRow>> all = withOrigin<ModeRow>(settingColumns());
    const std::vector<ColumnOf<ModeRow>> calibration = calibrationColumns();
    all.insert(all.end(), calibration.begin(), calibration.end());
    addFigureColumns(all, std::make_index_sequence<figureColumns.size()>{});
    return all;
}

const std::vector<ColumnOf<ModeRow>>& columns() {
    static const std::vector<ColumnOf<ModeRow>> all = allColumns();
    return all;
}

void addMode(const Parts& parts, const JoinedMode& mode, Sink& sink) {
    const auto& [settings, result] = mode;
    Parts ofMode = parts;
    const bool isSetUp = settings != nullptr && settings->index.hasValue;
    ofMode.modeIndex = isSetUp ? &settings->index : result != nullptr ? &result->index : nullptr;
    ModeRow row{ofMode, settings, result};
    if (settings != nullptr) {
        const bool isForTarget = settings->type.value == "Calibration";  // what belongs to another type is not written
        row.target = isForTarget ? valueOf(settings->targetSetting) : nullptr;
        row.parameters = isForTarget ? nullptr : valueOf(settings->parameterSetting);
    }
    row.basic = result != nullptr && result->hasBasicData ? &result->basicData : nullptr;
    if (result != nullptr) {
        row.figures = figureLines(modeFigures(mode));
    }
    addRow(columns(), row, sink);
}

}  // namespace

std::vector<Column> modeColumns() {
    return columnsOf(columns());
}

void addModeRows(const Parts& parts, Sink& sink) {
    for (const JoinedMode& mode : joinedModes(parts.settings, parts.results)) {
        addMode(parts, mode, sink);
    }
    if (parts.target != nullptr || parts.parameterSetting != nullptr || parts.basicData != nullptr) {
        addRow(columns(), {parts, nullptr, nullptr, parts.target, parts.parameterSetting, parts.basicData}, sink);
    }
}

}  // namespace lv::analysis
