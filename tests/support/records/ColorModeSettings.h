#pragma once

#include <tests/support/Member.h>
#include <tests/support/records/ParameterSetting.h>
#include <tests/support/records/ProfilePolicy.h>
#include <tests/support/records/TargetSetting.h>

#include <lvdata/records/ColorModeSettings.h>

namespace lv::test {

inline void members(MemberList& list, ColorModeSettingsObject& row) {
    list.add("type", row.type);
    list.add("index", row.index);
    list.add("name", row.name);
    list.add("availability", row.availability);
    list.add("parameterSetting", row.parameterSetting);
    list.add("targetSetting", row.targetSetting);
    list.add("profilePolicy", row.profilePolicy);
}

inline void members(MemberList& list, ColorModeSettings& record) {
    list.addBase(record);
    list.addRows(record);
}

}  // namespace lv::test
