#include <tests/support/MemberLine.h>
#include <tests/support/lines.h>
#include <tests/support/samples.h>

namespace lv::test {
namespace {

bool isOutermost(const MemberLine& line) {
    return line.name.find('.') == std::string::npos;
}

}  // namespace

std::string withClearFlags(const std::string& description, const std::set<std::string>& except) {
    std::string result;
    for (const MemberLine& line : memberLinesOf(description)) {
        std::string text = line.text;
        if (isOutermost(line) && except.count(line.name) == 0 && removeEnd(text, "(set)")) {
            text += "(unset)";
        }
        result += text + '\n';
    }
    return result;
}

}  // namespace lv::test
