#pragma once

#include <tests/properties/Found.h>
#include <tests/properties/Members.h>
#include <tests/properties/losses.h>
#include <tests/support/every_record.h>

namespace lv::test {

// What the properties need to know of a record, three functions each in a file of its own name under records/. A new
// record adds its lines here.

/// Hands each member to `visit`.
void members(Members& visit, AssetInfo& record);
void members(Members& visit, BasicData& record);
void members(Members& visit, CalibrationModeResult& record);
void members(Members& visit, CandelaMap& record);
void members(Members& visit, ColorModeSettings& record);
void members(Members& visit, CorrelationInfo& record);
void members(Members& visit, MeasurementData& record);
void members(Members& visit, MonitorConfiguration& record);
void members(Members& visit, MonitorInfo& record);
void members(Members& visit, MonitorParameter& record);
void members(Members& visit, ParameterSetting& record);
void members(Members& visit, ProfileData& record);
void members(Members& visit, ProfilePolicy& record);
void members(Members& visit, SelfCalibrationSchedule& record);
void members(Members& visit, StandardModeResult& record);
void members(Members& visit, TargetSetting& record);

/// Fills the record from its element, whose name and version attributes were seen to.
void read(const Found& element, AssetInfo& record);
void read(const Found& element, BasicData& record);
void read(const Found& element, CalibrationModeResult& record);
void read(const Found& element, CandelaMap& record);
void read(const Found& element, ColorModeSettings& record);
void read(const Found& element, CorrelationInfo& record);
void read(const Found& element, MeasurementData& record);
void read(const Found& element, MonitorConfiguration& record);
void read(const Found& element, MonitorInfo& record);
void read(const Found& element, MonitorParameter& record);
void read(const Found& element, ParameterSetting& record);
void read(const Found& element, ProfileData& record);
void read(const Found& element, ProfilePolicy& record);
void read(const Found& element, SelfCalibrationSchedule& record);
void read(const Found& element, StandardModeResult& record);
void read(const Found& element, TargetSetting& record);

}  // namespace lv::test
