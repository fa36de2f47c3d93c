#include <tests/properties/losses.h>

#include <regex>

namespace lv::test {

std::string keptInAttribute(const std::string& text) {
    static const std::regex lineEnd("\r\n|\n\r|\r");
    return std::regex_replace(std::string(text.c_str()), lineEnd, "\n");
}

std::string keptInElement(const std::string& text) {
    const std::string kept = keptInAttribute(text);
    return kept.find_first_not_of(" \t\n\v\f\r") == std::string::npos ? "" : kept;
}

void loseInBase(DataObject& record) {
    record.version.hasValue = true;
    record.minorVersion.hasValue = true;
    record.writeHLGSystemGamma = false;
}

void GeneralLosses::visit(std::string& member, const MemberTraits& traits) {
    member = traits.inAttribute ? keptInAttribute(member) : keptInElement(member);
}

}  // namespace lv::test
