#include "records.h"

#include <lvdata/lvdata.h>

#include <algorithm>
#include <array>

namespace tool {
namespace {

struct RecordClass {
    std::string_view rootElementName;
    std::unique_ptr<lv::DataObject> (*make)();
};

template <class Record>
constexpr RecordClass known() {
    return {Record::rootElementName, []() -> std::unique_ptr<lv::DataObject> {
                return std::make_unique<Record>();
            }};
}

constexpr std::array recordClasses{
    known<lv::AssetInfo>(),                 //
    known<lv::BasicData>(),                 //
    known<lv::CalibrationModeResult>(),     //
    known<lv::CandelaMap>(),                //
    known<lv::ColorModeSettings>(),         //
    known<lv::CorrelationInfo>(),           //
    known<lv::MeasurementData>(),           //
    known<lv::MeasurementDataSecondary>(),  //
    known<lv::MonitorConfiguration>(),      //
    known<lv::MonitorInfo>(),               //
    known<lv::MonitorParameter>(),          //
    known<lv::ParameterSetting>(),          //
    known<lv::ProfileData>(),               //
    known<lv::ProfilePolicy>(),             //
    known<lv::SelfCalibrationSchedule>(),   //
    known<lv::StandardModeResult>(),        //
    known<lv::TargetSetting>(),             //
};

}  // namespace

std::unique_ptr<lv::DataObject> makeRecord(std::string_view rootElementName) {
    const auto* const found =
        std::find_if(recordClasses.begin(), recordClasses.end(),
                     [&](const RecordClass& candidate) { return candidate.rootElementName == rootElementName; });
    return found == recordClasses.end() ? nullptr : found->make();
}

std::string knownRootElements() {
    std::string list;
    for (const RecordClass& recordClass : recordClasses) {
        list += list.empty() ? "" : ", ";
        list += recordClass.rootElementName;
    }
    return list;
}

}  // namespace tool
