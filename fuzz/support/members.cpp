#include <fuzz/support/harness.h>
#include <fuzz/support/members.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace lv::fuzz {
namespace {

std::size_t lastNameIn(const std::string& name) {
    return name.rfind('.') + 1;  // 0 where there is no point
}

/// "outer.hasBasicData" as "outer.basicData".
std::string withoutHas(std::string name) {
    const std::size_t start = lastNameIn(name);
    name.erase(start, std::string_view("has").size());
    name[start] = static_cast<char>(name[start] - 'A' + 'a');
    return name;
}

}  // namespace

bool isString(const Member& member) {
    return !member.value.empty() && member.value.front() == '"';
}

bool isInRow(const Member& member) {
    return member.name.find("objects") != std::string::npos;
}

bool tellsOfReading(const Member& member) {
    return member.name.substr(lastNameIn(member.name)) == "parsed";
}

bool followsFromValues(const Member& member) {
    constexpr std::array names = {"executorType", "measuredXYZ", "measuredXYZLimited109"};
    const std::string last = member.name.substr(lastNameIn(member.name));
    return std::find(names.begin(), names.end(), last) != names.end();
}

Members::Members(const std::string& description) : members_(test::memberLinesOf(description)) {
    for (const Member& member : members_) {
        indices_.emplace(member.name, indices_.size());
        noteMissing(member);
    }
}

const Member& Members::named(const std::string& name) const {
    const auto found = indices_.find(name);
    check(found != indices_.end(), "the record has a member " + name);
    return members_[found->second];
}

bool Members::isInMissingRecord(const Member& member) const {
    for (std::size_t end = member.name.find('.'); end != std::string::npos; end = member.name.find('.', end + 1)) {
        if (missing_.count(member.name.substr(0, end)) != 0) {
            return true;
        }
    }
    return false;
}

void Members::noteMissing(const Member& member) {
    const bool isFlagOfRecord = member.name.compare(lastNameIn(member.name), 3, "has") == 0 && member.value == "false";
    if (isFlagOfRecord) {
        missing_.insert(withoutHas(member.name));
    } else if (member.flag == Flag::unset) {
        missing_.insert(member.name);
    }
}

}  // namespace lv::fuzz
