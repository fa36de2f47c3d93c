#pragma once

#include <tests/support/documents.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

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

#include <string>

namespace lv::test {

/// What the tests run for that must hold for every record. A new record is one line here.
using EveryRecord = ::testing::Types<  //
    AssetInfo,                         //
    BasicData,                         //
    CalibrationModeResult,             //
    CandelaMap,                        //
    ColorModeSettings,                 //
    CorrelationInfo,                   //
    MeasurementData,                   //
    MeasurementDataSecondary,          //
    MonitorConfiguration,              //
    MonitorInfo,                       //
    MonitorParameter,                  //
    ParameterSetting,                  //
    ProfileData,                       //
    ProfilePolicy,                     //
    SelfCalibrationSchedule,           //
    StandardModeResult,                //
    TargetSetting>;

/// Names the tests after their record.
struct RecordName {
    template <class Record>
    static std::string GetName(int /*index*/) {
        return Record::rootElementName;
    }
};

template <class Record>
class EveryRecordTest : public ::testing::Test {
protected:
    static std::string rootName() { return Record::rootElementName; }

    /// A document with all elements and other values than `filled` has.
    static std::string otherDocument() { return withOtherTexts(compact(filled<Record>())); }
};

}  // namespace lv::test
