#include <lvdata/core/detail/record.h>
#include <lvdata/records/MonitorInfo.h>

namespace lv {
namespace {

constexpr auto visit = [](auto& io, auto& self) {
    io.field("UUID", self.uuid);
    io.always().record(self.monitorConfiguration);
    io.always().record(self.calibrationModeResult);
    io.always().record(self.standardModeResult);
    io.always().record(self.assetInfo);
    io.always().record(self.correlationInfo);
    io.record(self.candelaMap);
};

}  // namespace

MonitorInfo::MonitorInfo() : DataObject(2, 2) {}

bool MonitorInfo::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement MonitorInfo::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description MonitorInfo::describe() {
    return detail::describeRecord<MonitorInfo>(rootElementName, visit);
}

bool operator==(const MonitorInfo& left, const MonitorInfo& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
