#include <lvdata/core/detail/record.h>
#include <lvdata/records/CalibrationModeResult.h>

namespace lv {
namespace {

using detail::isSet;
using detail::notEmpty;

template <class Io, class EmulationLUT>
void visitEmulationLUT(Io& io, EmulationLUT& table) {
    auto element = io.writeWhen(isSet(table.present)).element("EmulationLUT");
    element.value("Availability", table.availability);
    element.value("Index", table.index, quantities::identifier);
    element.writeWhen(notEmpty(table.name)).value("Name", table.name);
    io.derive(table.present, element.exists());
}

constexpr auto visitRow = [](auto& io, auto& row) {
    io.attribute("Type", row.type);
    io.field("Index", row.index, quantities::identifier);
    io.field("Name", row.name);
    io.field("CalibratedTime", row.calibratedTime);
    io.record(row.basicData, row.hasBasicData);
    io.record(row.measurementData, row.hasMeasurementData);
    io.field("HasValidMeasuredBlackValue", row.hasValidMeasuredBlackValue);
    io.record(row.monitorParameter, row.hasMonitorParameter);
    io.always().record(row.profileData, row.hasProfileData);
    visitEmulationLUT(io, row.emulationLUT);
    return io.exists();
};

constexpr auto visit = [](auto& io, auto& self) {
    io.rows("ColorMode", self, visitRow);
};

}  // namespace

CalibrationModeResult::CalibrationModeResult() : DataArrayObject(2, 0) {}

bool CalibrationModeResult::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement CalibrationModeResult::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description CalibrationModeResult::describe() {
    return detail::describeRecord<CalibrationModeResult>(rootElementName, visit);
}

bool operator==(const CalibrationModeResultObject::EmulationLUT& left,
                const CalibrationModeResultObject::EmulationLUT& right) {
    return detail::areEqual(left, right, [](auto& io, auto& table) { visitEmulationLUT(io, table); });
}

bool operator==(const CalibrationModeResultObject& left, const CalibrationModeResultObject& right) {
    return detail::areEqual(left, right, visitRow);
}

bool operator==(const CalibrationModeResult& left, const CalibrationModeResult& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
