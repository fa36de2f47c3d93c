#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/ProfileData.h>

namespace lv::test {

inline void members(MemberList& list, ProfileData::xyz_set_t& set) {
    list.add("red", set.red);
    list.add("green", set.green);
    list.add("blue", set.blue);
    list.add("white", set.white);
    list.add("black", set.black);
}

inline void members(MemberList& list, ProfileData::target_curve& curve) {
    list.add("type", curve.type);
    list.add("formula", curve.formula);
    list.add("lut", curve.lut);
}

inline void members(MemberList& list, ProfileData& record) {
    list.addBase(record);
    list.add("description", record.description);
    list.add("measuredXYZ", record.measuredXYZ);
    list.add("measuredXYZLimited109", record.measuredXYZLimited109).members.back().role = Member::Role::inNoDocument;
    list.add("redTargetCurve", record.redTargetCurve);
    list.add("greenTargetCurve", record.greenTargetCurve);
    list.add("blueTargetCurve", record.blueTargetCurve);
}

}  // namespace lv::test
