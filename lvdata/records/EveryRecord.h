#pragma once

#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/BasicData.h>
#include <lvdata/records/CalibrationModeResult.h>
#include <lvdata/records/CandelaMap.h>
#include <lvdata/records/ColorModeSettings.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MeasurementDataSecondary.h>
#include <lvdata/records/MonitorConfiguration.h>
#include <lvdata/records/MonitorInfo.h>
#include <lvdata/records/MonitorParameter.h>
#include <lvdata/records/ParameterSetting.h>
#include <lvdata/records/ProfileData.h>
#include <lvdata/records/ProfilePolicy.h>
#include <lvdata/records/SelfCalibrationSchedule.h>
#include <lvdata/records/StandardModeResult.h>
#include <lvdata/records/TargetSetting.h>

namespace lv {

/// A list of record classes, for templates that process each of them.
template <class... Records>
struct RecordTypes {};

/// All record classes, by name. When the class is known only at run time, for instance from the root element of a
/// document, use `recordClass`.
using EveryRecord = RecordTypes<  //
    AssetInfo,                    //
    BasicData,                    //
    CalibrationModeResult,        //
    CandelaMap,                   //
    ColorModeSettings,            //
    CorrelationInfo,              //
    MeasurementData,              //
    MeasurementDataSecondary,     //
    MonitorConfiguration,         //
    MonitorInfo,                  //
    MonitorParameter,             //
    ParameterSetting,             //
    ProfileData,                  //
    ProfilePolicy,                //
    SelfCalibrationSchedule,      //
    StandardModeResult,           //
    TargetSetting>;

}  // namespace lv
