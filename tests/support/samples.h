#pragma once

#include <tests/support/describe.h>

#include <lvdata/records/MeasurementDataSecondary.h>

#include <set>
#include <string>
#include <type_traits>

namespace lv::test {

/// A record, or a value that records hold, whose every member has a value of its own and none its default, all of it
/// such as to be written. A new record adds its line here and defines it beside its description.
template <class Record>
[[nodiscard]] Record filled() = delete;

template <>
[[nodiscard]] AssetInfo filled<AssetInfo>();
template <>
[[nodiscard]] BasicData filled<BasicData>();
template <>
[[nodiscard]] CalibrationModeResult filled<CalibrationModeResult>();
template <>
[[nodiscard]] CalibrationModeResultObject filled<CalibrationModeResultObject>();
template <>
[[nodiscard]] CandelaMap filled<CandelaMap>();
template <>
[[nodiscard]] ColorModeSettings filled<ColorModeSettings>();
template <>
[[nodiscard]] ColorModeSettingsObject filled<ColorModeSettingsObject>();
template <>
[[nodiscard]] CorrelationInfo filled<CorrelationInfo>();
template <>
[[nodiscard]] MeasurementData filled<MeasurementData>();
template <>
[[nodiscard]] MeasurementDataObject filled<MeasurementDataObject>();
template <>
[[nodiscard]] MeasurementDataSecondary filled<MeasurementDataSecondary>();
template <>
[[nodiscard]] MonitorConfiguration filled<MonitorConfiguration>();
template <>
[[nodiscard]] MonitorInfo filled<MonitorInfo>();
template <>
[[nodiscard]] MonitorParameter filled<MonitorParameter>();
template <>
[[nodiscard]] ParameterSetting filled<ParameterSetting>();
template <>
[[nodiscard]] PrimaryColours filled<PrimaryColours>();
template <>
[[nodiscard]] ProfileData filled<ProfileData>();
template <>
[[nodiscard]] ProfilePolicy filled<ProfilePolicy>();
template <>
[[nodiscard]] SelfCalibrationSchedule filled<SelfCalibrationSchedule>();
template <>
[[nodiscard]] StandardModeResult filled<StandardModeResult>();
template <>
[[nodiscard]] TargetSetting filled<TargetSetting>();
template <>
[[nodiscard]] colour filled<colour>();

/// The share of `filled` in what all records have.
void fillBase(DataObject& record);

/// What is left of `filled` when it was printed and parsed into a fresh record: all but the switch, which is in no
/// document. A record that loses more on purpose specialises this.
template <class Record>
[[nodiscard]] Record filledAndParsedBack() {
    Record record = filled<Record>();
    record.writeHLGSystemGamma = false;
    return record;
}

template <class Record, class = void>
inline constexpr bool hasRows = false;

template <class Record>
inline constexpr bool hasRows<Record, std::void_t<decltype(Record::objects)>> = true;

/// A description in which the flags of the outermost members are clear, save those of the members named.
[[nodiscard]] std::string withClearFlags(const std::string& description, const std::set<std::string>& except = {});

/// How `filled` looks when it has read a root element without attributes and children: the values stay, the flags are
/// clear, the rows are gone. A record that keeps some flag on purpose specialises this.
template <class Record>
[[nodiscard]] std::string filledAfterEmptyRoot() {
    Record record = filled<Record>();
    if constexpr (hasRows<Record>) {
        record.objects.clear();
    }
    return withClearFlags(describe(record));
}

// The records that lose or keep something on purpose.

template <>
[[nodiscard]] std::string filledAfterEmptyRoot<BasicData>();
template <>
[[nodiscard]] CalibrationModeResult filledAndParsedBack<CalibrationModeResult>();
template <>
[[nodiscard]] CalibrationModeResultObject filledAndParsedBack<CalibrationModeResultObject>();
template <>
[[nodiscard]] ColorModeSettings filledAndParsedBack<ColorModeSettings>();
template <>
[[nodiscard]] MonitorConfiguration filledAndParsedBack<MonitorConfiguration>();
template <>
[[nodiscard]] MonitorInfo filledAndParsedBack<MonitorInfo>();
template <>
[[nodiscard]] ParameterSetting filledAndParsedBack<ParameterSetting>();
template <>
[[nodiscard]] std::string filledAfterEmptyRoot<ProfileData>();
template <>
[[nodiscard]] ProfileData filledAndParsedBack<ProfileData>();
template <>
[[nodiscard]] SelfCalibrationSchedule filledAndParsedBack<SelfCalibrationSchedule>();
template <>
[[nodiscard]] std::string filledAfterEmptyRoot<StandardModeResult>();
template <>
[[nodiscard]] StandardModeResult filledAndParsedBack<StandardModeResult>();
template <>
[[nodiscard]] std::string filledAfterEmptyRoot<TargetSetting>();
template <>
[[nodiscard]] TargetSetting filledAndParsedBack<TargetSetting>();

}  // namespace lv::test
