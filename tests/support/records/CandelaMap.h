#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/CandelaMap.h>

namespace lv::test {

inline void members(MemberList& list, CandelaMapEntry& map) {
    list.add("values", map.values);
    list.add("updatedAt", map.updatedAt);
    list.addFlag("valid", map.valid, Member::Role::flagOfAll);
}

inline void members(MemberList& list, CandelaMap& record) {
    list.addBase(record);
    list.add("uniformity", record.uniformity);
    list.add("brightness", record.brightness);
}

}  // namespace lv::test
