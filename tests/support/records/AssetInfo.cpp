#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const AssetInfo& record) {
    describeBase(out, record);
    out.member("asset1", record.asset1);
    out.member("asset2", record.asset2);
    out.member("asset3", record.asset3);
    out.member("asset4", record.asset4);
    out.member("asset5", record.asset5);
    out.member("asset6", record.asset6);
    out.member("asset7", record.asset7);
    out.member("asset8", record.asset8);
}

template <>
AssetInfo filled<AssetInfo>() {
    AssetInfo record;
    fillBase(record);
    record.asset1.set("INV-2041");
    record.asset2.set("Building 2");
    record.asset3.set("Room 3.14");
    record.asset4.set("Desk 4");
    record.asset5.set("Prepress 5");
    record.asset6.set("bought 2016");
    record.asset7.set("leased until 2027");
    record.asset8.set("contract 88");
    return record;
}

}  // namespace lv::test
