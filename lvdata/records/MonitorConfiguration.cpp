#include <lvdata/core/detail/record.h>
#include <lvdata/records/MonitorConfiguration.h>

namespace lv {
namespace {

constexpr auto visit = [](auto& io, auto& self) {
    io.field("Name", self.name);
    io.field("Model", self.model);
    io.field("Serial", self.serial);
    io.always().record(self.colorModeSettings);
    io.always().record(self.selfCalibrationSchedule);
    io.field("StandardModeCalibration", self.standardModeCalibration);
    io.field("KeyLock", self.keyLock);
};

}  // namespace

MonitorConfiguration::MonitorConfiguration() : DataObject(2, 0) {}

bool MonitorConfiguration::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement MonitorConfiguration::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description MonitorConfiguration::describe() {
    return detail::describeRecord<MonitorConfiguration>(rootElementName, visit);
}

bool operator==(const MonitorConfiguration& left, const MonitorConfiguration& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
