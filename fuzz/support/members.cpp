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

/// Of a nested record that is a plain member beside its flag.
bool isFlagOfRecord(const Member& member) {
    return member.name.compare(lastNameIn(member.name), 3, "has") == 0;
}

}  // namespace

bool isArray(const Member& member) {
    return member.value.find(" entries:") != std::string::npos && member.value.front() != '"';
}

bool isInRow(const Member& member) {
    return member.name.find('[') != std::string::npos;
}

bool isRowCount(const Member& member) {
    return member.name.substr(lastNameIn(member.name)) == "objects";
}

std::string nameInRow(const Member& member) {
    return member.name.substr(member.name.rfind("].") + 2);
}

bool tellsOfReading(const Member& member) {
    const std::string last = member.name.substr(lastNameIn(member.name));
    return last == "parsed" || last == "hasProfileData";
}

bool tellsOfRecord(const Member& member) {
    return isFlagOfRecord(member) || tellsOfReading(member);
}

bool followsFromValues(const Member& member) {
    constexpr std::array names = {"executorType", "measuredXYZ", "measuredXYZLimited109", "valid"};
    const std::string last = member.name.substr(lastNameIn(member.name));
    return std::find(names.begin(), names.end(), last) != names.end();
}

Members::Members(const std::string& description) : members_(test::memberLinesOf(description)) {
    for (std::size_t index = 0; index < members_.size(); ++index) {
        indices_.emplace(members_[index].name, index);
        noteMissing(members_[index]);
    }
}

bool Members::has(const std::string& name) const {
    return indices_.count(name) != 0;
}

const Member& Members::named(const std::string& name) const {
    const auto found = indices_.find(name);
    check(found != indices_.end(), "the record has a member " + name);
    return members_[found->second];
}

int Members::rowsIn(const std::string& list) const {
    return std::stoi(named(list).value);
}

bool Members::hasRowsOf(const Members& others, const Member& member) const {
    const std::string& name = member.name;
    for (std::size_t end = name.find('['); end != std::string::npos; end = name.find('[', end + 1)) {
        const std::string list = name.substr(0, end);
        if (rowsIn(list) != others.rowsIn(list)) {
            return false;
        }
    }
    return true;
}

bool Members::isInMissingRecord(const Member& member) const {
    const std::string name = member.name.substr(0, member.name.find('['));
    for (std::size_t end = name.find('.'); end != std::string::npos; end = name.find('.', end + 1)) {
        if (isMissingRecord(name.substr(0, end))) {
            return true;
        }
    }
    return false;
}

void Members::noteMissing(const Member& member) {
    if (isFlagOfRecord(member) && member.value == "false") {
        missing_.insert(withoutHas(member.name));
    } else if (member.flag == Flag::unset) {
        missing_.insert(member.name);
    }
}

bool Members::isMissingRecord(const std::string& name) const {
    return missing_.count(name) != 0 && has(name + ".version");
}

bool isReadByLeftType(const Members& record, const Members& later, const Member& member) {
    const std::string structure = member.name.substr(0, lastNameIn(member.name));
    const std::string name = structure + "type";
    if (!record.has(name) || member.name == name) {
        return false;
    }
    const std::string& type = record.named(name).value;
    const bool isOfCurve = structure.find("TargetCurve.") != std::string::npos;
    return type != later.named(name).value && (isOfCurve || type == "\"SyncSignal\"");
}

}  // namespace lv::fuzz
