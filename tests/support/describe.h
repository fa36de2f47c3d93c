#pragma once

#include <tests/support/Description.h>

#include <lvdata/core/DataObject.h>
#include <lvdata/core/PrimaryColours.h>
#include <lvdata/core/colour.h>
#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorConfiguration.h>
#include <lvdata/records/MonitorInfo.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfileData.h>
#include <lvdata/records/ProfilePolicy.h>
#include <lvdata/records/SelfCalibrationSchedule.h>
#include <lvdata/records/StandardModeResult.h>
#include <lvdata/records/TargetSetting.h>

#include <string>

namespace lv::test {

/// The members of every record and of every value that records hold, listed by hand: what the library forgets to read
/// or to write, these do not. A new record adds its lines here and defines them in a file of its own name.
void describe(Description& out, const AssetInfo& record);
void describe(Description& out, const BasicData& record);
void describe(Description& out, const CalibrationModeResult& record);
void describe(Description& out, const CalibrationModeResultObject& row);
void describe(Description& out, const CalibrationModeResultObject::EmulationLUT& table);
void describe(Description& out, const CandelaMap& record);
void describe(Description& out, const CandelaMapEntry& map);
void describe(Description& out, const ColorModeSettings& record);
void describe(Description& out, const ColorModeSettingsObject& row);
void describe(Description& out, const CorrelationInfo& record);
void describe(Description& out, const MeasurementData& record);
void describe(Description& out, const MeasurementDataObject& row);
void describe(Description& out, const MonitorConfiguration& record);
void describe(Description& out, const MonitorInfo& record);
void describe(Description& out, const MonitorParameter& record);
void describe(Description& out, const MonitorParameter::six_colors_t& colours);
void describe(Description& out, const ParameterSetting& record);
void describe(Description& out, const ParameterSetting::brightness_t& brightness);
void describe(Description& out, const ParameterSetting::gamma_t& gamma);
void describe(Description& out, const ParameterSetting::gamut_t& gamut);
void describe(Description& out, const ParameterSetting::white_point_t& whitePoint);
void describe(Description& out, const PrimaryColours& value);
void describe(Description& out, const ProfileData& record);
void describe(Description& out, const ProfileData::target_curve& curve);
void describe(Description& out, const ProfileData::xyz_set_t& set);
void describe(Description& out, const ProfilePolicy& record);
void describe(Description& out, const SelfCalibrationSchedule& record);
void describe(Description& out, const StandardModeResult& record);
void describe(Description& out, const TargetSetting& record);
void describe(Description& out, const TargetSetting::advanced_settings_t& settings);
void describe(Description& out, const TargetSetting::advanced_settings_t::advanced_settings_six_colors_t& colours);
void describe(Description& out, const TargetSetting::black_level_t& tint);
void describe(Description& out, const TargetSetting::gamma_t& gamma);
void describe(Description& out, const TargetSetting::gamma_t::gamma_color& color);
void describe(Description& out, const TargetSetting::gamut_t& gamut);
void describe(Description& out, const TargetSetting::gamut_t::coordinate& primary);
void describe(Description& out, const TargetSetting::level_t& level);
void describe(Description& out, const TargetSetting::standard_t& named);
void describe(Description& out, const TargetSetting::white_point_t& whitePoint);
void describe(Description& out, const colour& value);

/// What all records have; the first call of every record's own function.
void describeBase(Description& out, const DataObject& record);

/// Two values are equal in every member exactly when these texts are; their difference tells which member it is.
template <class T>
[[nodiscard]] std::string describe(const T& value) {
    Description out;
    describe(out, value);
    return out.text();
}

}  // namespace lv::test
