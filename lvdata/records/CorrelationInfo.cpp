#include <lvdata/core/detail/record.h>
#include <lvdata/records/CorrelationInfo.h>

namespace lv {
namespace {

constexpr auto visit = [](auto& io, auto& self) {
    io.field("ReferenceSensorID", self.referenceSensorID);
    io.field("ReferenceSensorSerial", self.referenceSensorSerial);
    io.field("CorrelationDate", self.correlationDate);
};

}  // namespace

CorrelationInfo::CorrelationInfo() : DataObject(1, 0) {}

bool CorrelationInfo::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement CorrelationInfo::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description CorrelationInfo::describe() {
    return detail::describeRecord<CorrelationInfo>(rootElementName, visit);
}

bool operator==(const CorrelationInfo& left, const CorrelationInfo& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
