#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, ProfilePolicy& record) {
    membersOfBase(visit, record);
    visit(record.updateRule, attribute());
    visit.all(record.profileDescription, record.profileName, record.content);
    visit.all(record.profileVersion, record.toneCurve);
    visit.all(record.reflectBlackLevels, record.create3DLut, record.createLuminanceTag);
}

void lose(ProfilePolicy& record, bool /*hlgSwitch*/) {
    for (auto* part : {&record.profileDescription, &record.profileName, &record.content}) {
        keepWhen(record.updateRule.hasValue, *part);  // they stand inside the rule
    }
    loseInGeneral(record);
}

void read(const Found& element, ProfilePolicy& record) {
    const Found rule = element.child("UpdateRule");
    rule.attribute("Type", record.updateRule);
    rule("ProfileDescription", record.profileDescription);
    rule("ProfileName", record.profileName);
    rule("Content", record.content);
    element("ProfileVersion", record.profileVersion);
    element("ToneCurve", record.toneCurve);
    element("ReflectBlackLevels", record.reflectBlackLevels);
    element("Create3DLut", record.create3DLut);
    element("CreateLuminanceTag", record.createLuminanceTag);
}

}  // namespace lv::test
