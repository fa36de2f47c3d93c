#include <tests/support/MemberLine.h>
#include <tests/support/lines.h>

namespace lv::test {
namespace {

/// Takes the flag off the value.
Flag takeFlag(std::string& value) {
    Flag flag = Flag::none;
    if (removeEnd(value, "(set)")) {
        flag = Flag::set;
    } else if (removeEnd(value, "(unset)")) {
        flag = Flag::unset;
    }
    if (flag != Flag::none) {
        removeEnd(value, " ");
    }
    return flag;
}

MemberLine memberLine(const std::string& text) {
    const std::string sign = " = ";
    const std::size_t middle = text.find(sign);
    std::string value = text.substr(middle + sign.size());
    const Flag flag = takeFlag(value);
    return {text, text.substr(0, middle), value, flag};
}

}  // namespace

std::vector<MemberLine> memberLinesOf(const std::string& description) {
    std::vector<MemberLine> members;
    for (const std::string& text : linesOf(description)) {
        members.push_back(memberLine(text));
    }
    return members;
}

}  // namespace lv::test
