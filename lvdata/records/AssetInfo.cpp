#include <lvdata/core/detail/record.h>
#include <lvdata/records/AssetInfo.h>

namespace lv {
namespace {

constexpr auto visit = [](auto& io, auto& self) {
    io.field("Asset1", self.asset1);
    io.field("Asset2", self.asset2);
    io.field("Asset3", self.asset3);
    io.field("Asset4", self.asset4);
    io.field("Asset5", self.asset5);
    io.field("Asset6", self.asset6);
    io.field("Asset7", self.asset7);
    io.field("Asset8", self.asset8);
};

}  // namespace

AssetInfo::AssetInfo() : DataObject(1, 0) {}

bool AssetInfo::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement AssetInfo::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description AssetInfo::describe() {
    return detail::describeRecord<AssetInfo>(rootElementName, visit);
}

bool operator==(const AssetInfo& left, const AssetInfo& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
