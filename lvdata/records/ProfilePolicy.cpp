#include <lvdata/core/detail/record.h>
#include <lvdata/records/ProfilePolicy.h>

namespace lv {
namespace {

using detail::isSet;

template <class Io, class Self>
void visitUpdateRule(Io& io, Self& self) {
    auto rule = io.writeWhen(isSet(self.updateRule)).element("UpdateRule");
    rule.attribute("Type", self.updateRule);
    rule.field("ProfileDescription", self.profileDescription);
    rule.field("ProfileName", self.profileName);
    rule.field("Content", self.content);
}

constexpr auto visit = [](auto& io, auto& self) {
    visitUpdateRule(io, self);
    io.field("ProfileVersion", self.profileVersion);
    io.field("ToneCurve", self.toneCurve);
    io.field("ReflectBlackLevels", self.reflectBlackLevels);
    io.field("Create3DLut", self.create3DLut);
    io.field("CreateLuminanceTag", self.createLuminanceTag);
};

}  // namespace

ProfilePolicy::ProfilePolicy() : DataObject(2, 0) {}

bool ProfilePolicy::parseXMLElement(XMLElement element) {
    return detail::parseRecord(*this, rootElementName, element, visit);
}

XMLElement ProfilePolicy::appendXMLElement(XMLNode& parent) const {
    return detail::appendRecord(*this, rootElementName, parent, visit);
}

Description ProfilePolicy::describe() {
    return detail::describeRecord<ProfilePolicy>(rootElementName, visit);
}

bool operator==(const ProfilePolicy& left, const ProfilePolicy& right) {
    return detail::areEqualRecords(left, right, visit);
}

}  // namespace lv
