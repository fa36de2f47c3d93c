#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const ProfilePolicy& record) {
    describeBase(out, record);
    out.member("updateRule", record.updateRule);
    out.member("profileDescription", record.profileDescription);
    out.member("profileName", record.profileName);
    out.member("content", record.content);
    out.member("profileVersion", record.profileVersion);
    out.member("toneCurve", record.toneCurve);
    out.member("reflectBlackLevels", record.reflectBlackLevels);
    out.member("create3DLut", record.create3DLut);
    out.member("createLuminanceTag", record.createLuminanceTag);
}

template <>
ProfilePolicy filled<ProfilePolicy>() {
    ProfilePolicy record;
    fillBase(record);
    record.updateRule.set("Rule 1");
    record.profileDescription.set("Description 2");
    record.profileName.set("Name 3");
    record.content.set("Content 4");
    record.profileVersion.set("5.2");
    record.toneCurve.set("Curve 6");
    record.reflectBlackLevels.set(true);
    record.create3DLut.set(true);
    record.createLuminanceTag.set(true);
    return record;
}

}  // namespace lv::test
