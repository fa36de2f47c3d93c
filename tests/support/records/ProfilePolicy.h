#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/ProfilePolicy.h>

namespace lv::test {

inline void members(MemberList& list, ProfilePolicy& record) {
    list.addBase(record);
    list.add("updateRule", record.updateRule);
    list.add("profileDescription", record.profileDescription);
    list.add("profileName", record.profileName);
    list.add("content", record.content);
    list.add("profileVersion", record.profileVersion);
    list.add("toneCurve", record.toneCurve);
    list.add("reflectBlackLevels", record.reflectBlackLevels);
    list.add("create3DLut", record.create3DLut);
    list.add("createLuminanceTag", record.createLuminanceTag);
}

}  // namespace lv::test
