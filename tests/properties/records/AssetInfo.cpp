#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, AssetInfo& record) {
    membersOfBase(visit, record);
    visit.all(record.asset1, record.asset2, record.asset3, record.asset4);
    visit.all(record.asset5, record.asset6, record.asset7, record.asset8);
}

void lose(AssetInfo& record, bool /*hlgSwitch*/) {
    loseInGeneral(record);
}

void read(const Found& element, AssetInfo& record) {
    element("Asset1", record.asset1);
    element("Asset2", record.asset2);
    element("Asset3", record.asset3);
    element("Asset4", record.asset4);
    element("Asset5", record.asset5);
    element("Asset6", record.asset6);
    element("Asset7", record.asset7);
    element("Asset8", record.asset8);
}

}  // namespace lv::test
