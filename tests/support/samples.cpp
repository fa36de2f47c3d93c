#include <tests/support/samples.h>

#include <sstream>

namespace lv::test {
namespace {

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string memberOf(const std::string& line) {
    return line.substr(0, line.find(" = "));
}

bool isOutermost(const std::string& line) {
    return memberOf(line).find('.') == std::string::npos;
}

}  // namespace

std::string withClearFlags(const std::string& description, const std::set<std::string>& except) {
    const std::string set = "(set)";
    std::istringstream lines(description);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        if (isOutermost(line) && endsWith(line, set) && except.count(memberOf(line)) == 0) {
            line.replace(line.size() - set.size(), set.size(), "(unset)");
        }
        result += line + '\n';
    }
    return result;
}

}  // namespace lv::test
