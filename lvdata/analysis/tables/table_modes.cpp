#include <lvdata/analysis/tables/table_rows.h>
#include <lvdata/core/quantities.h>

#include <map>
#include <set>

namespace lv::analysis {
namespace {

using ModeResult = CalibrationModeResultObject;
using ModeSettings = ColorModeSettingsObject;

/// A mode: what is set up, what it is to reach, and its result; null for what there is not.
struct ModeRow {
    const Parts& parts;
    const ModeSettings* settings = nullptr;
    const ModeResult* result = nullptr;
    const TargetSetting* target = nullptr;
    const ParameterSetting* parameters = nullptr;
    const BasicData* basic = nullptr;
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

/// The name of a standard, or the type of what is not given by a standard.
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

const std::vector<ColumnOf<ModeRow>>& columns() {
    static const std::vector<ColumnOf<ModeRow>> all = withOrigin<ModeRow>({
        {{"type", "", "type of the mode"}, &giveType},
        {{"name", "", "name of the mode"}, &giveName},
        {{"brightness_type", "", "how the brightness to be reached is given"}, &giveBrightnessType},
        {{"brightness", notRecorded, "the brightness to be reached; % when its type is Percent", Values::integer},
         &giveBrightness},
        {{"white_x", "", "CIE 1931 x of the white to be reached", Values::fraction},
         &giveWhite<&TargetSetting::white_point_t::x>},
        {{"white_y", "", "CIE 1931 y of the white to be reached", Values::fraction},
         &giveWhite<&TargetSetting::white_point_t::y>},
        {{"white_temperature", notRecorded, "temperature of the white to be reached", Values::integer},
         &giveTemperature},
        {{"gamma", "", "tone curve to be reached: a standard, a number, or the type"}, &giveGamma},
        {{"gamut", "", "gamut to be reached: a standard, or the type"}, &giveGamut},
        {{"calibrated_time", "", "when the mode was calibrated, as it stands; its form is not recorded"},
         [](const ModeRow& row, Cell& cell) {
             if (row.result != nullptr) {
                 cell.text(row.result->calibratedTime);
             }
         }},
        {{"sensor_name", "", "name of the colour sensor"}, &giveText<&BasicData::colorSensorName>},
        {{"sensor_serial", "", "serial number of the colour sensor"}, &giveText<&BasicData::colorSensorSerial>},
        {{"usage_hours", notRecorded, "hours of use, by the name of the element", Values::integer},
         &giveNumber<&BasicData::usageHours>},
        {{"correlation_id", "", "identifier of the sensor's correlation", Values::integer},
         &giveNumber<&BasicData::colorSensorCorrelationID>},
        {{"correlation_date", "", "date of the sensor's correlation, as it stands"},
         &giveText<&BasicData::colorSensorCorrelationDate>},
    });
    return all;
}

/// The results by their index, each to be taken once: the rows of the settings come first, then the other results.
class Results {
public:
    explicit Results(const CalibrationModeResult* results) {
        if (results != nullptr) {
            for (const ModeResult& each : results->objects) {
                all_.push_back(&each);
                if (each.index.hasValue) {
                    byIndex_.emplace(each.index.value, &each);
                }
            }
        }
    }

    const ModeResult* take(const property<unsigned int>& index) {
        const auto found = index.hasValue ? byIndex_.find(index.value) : byIndex_.end();
        if (found == byIndex_.end()) {
            return nullptr;
        }
        const ModeResult* const result = found->second;
        byIndex_.erase(found);
        taken_.insert(result);
        return result;
    }

    [[nodiscard]] std::vector<const ModeResult*> others() const {
        std::vector<const ModeResult*> others;
        for (const ModeResult* const each : all_) {
            if (taken_.count(each) == 0) {
                others.push_back(each);
            }
        }
        return others;
    }

private:
    std::vector<const ModeResult*> all_;
    std::map<unsigned int, const ModeResult*> byIndex_;  // of those with the same index the first
    std::set<const ModeResult*> taken_;
};

void addMode(const Parts& parts, const ModeSettings* settings, const ModeResult* result, Sink& sink) {
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
    addRow(columns(), row, sink);
}

}  // namespace

std::vector<Column> modeColumns() {
    return columnsOf(columns());
}

void addModeRows(const Parts& parts, Sink& sink) {
    Results results(parts.results);
    if (parts.settings != nullptr) {
        for (const ModeSettings& each : parts.settings->objects) {
            addMode(parts, &each, results.take(each.index), sink);
        }
    }
    for (const ModeResult* const each : results.others()) {
        addMode(parts, nullptr, each, sink);
    }
    if (parts.target != nullptr || parts.parameterSetting != nullptr || parts.basicData != nullptr) {
        addRow(columns(), {parts, nullptr, nullptr, parts.target, parts.parameterSetting, parts.basicData}, sink);
    }
}

}  // namespace lv::analysis
