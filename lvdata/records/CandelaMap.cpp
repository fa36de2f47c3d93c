#include <lvdata/core/detail/record.h>
#include <lvdata/records/CandelaMap.h>

namespace lv {
namespace {

using detail::isSet;
using detail::notEmpty;

constexpr auto visitMap = [](const auto& io, auto& entry) {
    auto map = io.writeWhen(isSet(entry.valid));
    map.value("Values", entry.values);
    map.value("UpdatedAt", entry.updatedAt);
    map.derive(entry.valid, notEmpty(entry.values));
};

constexpr auto visit = [](auto& io, auto& self) {
    visitMap(io.element("Uniformity"), self.uniformity);
    visitMap(io.element("Brightness"), self.brightness);
};

}  // namespace

CandelaMap::CandelaMap() : DataObject(1, 0) {}

bool CandelaMap::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement CandelaMap::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description CandelaMap::describe() {
    return detail::describeRecord<CandelaMap>(rootElementName, visit);
}

bool operator==(const CandelaMapEntry& left, const CandelaMapEntry& right) {
    return detail::areEqual(left, right, visitMap);
}

bool operator==(const CandelaMap& left, const CandelaMap& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
