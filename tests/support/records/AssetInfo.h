#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/AssetInfo.h>

namespace lv::test {

inline void members(MemberList& list, AssetInfo& record) {
    list.addBase(record);
    list.add("asset1", record.asset1);
    list.add("asset2", record.asset2);
    list.add("asset3", record.asset3);
    list.add("asset4", record.asset4);
    list.add("asset5", record.asset5);
    list.add("asset6", record.asset6);
    list.add("asset7", record.asset7);
    list.add("asset8", record.asset8);
}

}  // namespace lv::test
