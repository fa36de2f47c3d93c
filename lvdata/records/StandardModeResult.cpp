#include <lvdata/core/detail/record.h>
#include <lvdata/records/StandardModeResult.h>

namespace lv {
namespace {

constexpr auto visit = [](auto& io, auto& self) {
    io.record(self.measurementData, self.hasMeasurementData);
    io.record(self.measurementDataSecondary, self.hasMeasurementDataSecondary);
    io.field("MaxWhite", self.maxWhite);
    io.record(self.basicData, self.hasBasicData);
};

}  // namespace

StandardModeResult::StandardModeResult() : DataObject(3, 1) {}

bool StandardModeResult::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement StandardModeResult::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description StandardModeResult::describe() {
    return detail::describeRecord<StandardModeResult>(rootElementName, visit);
}

bool operator==(const StandardModeResult& left, const StandardModeResult& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
