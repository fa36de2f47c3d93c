#include "Mixture.h"

#include <tests/support/lines.h>

#include <algorithm>
#include <optional>

namespace lv::test {
namespace {

/// How many rows a line like "objects = 3 rows" states.
std::optional<int> rowsIn(const MemberLine& line) {
    std::string number = line.value;
    return removeEnd(number, " rows") ? std::optional(std::stoi(number)) : std::nullopt;
}

bool startsWithAny(const std::string& text, const std::vector<std::string>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&text](const std::string& beginning) { return text.rfind(beginning, 0) == 0; });
}

template <class State>
bool holds(const std::map<std::string, std::set<State>>& known, const std::string& name, const State& state) {
    const auto found = known.find(name);
    return found != known.end() && found->second.count(state) != 0;
}

}  // namespace

Mixture::Mixture(const std::string& before, const std::string& whole) {
    add(before);
    add(whole);
}

void Mixture::add(const std::string& description) {
    for (const MemberLine& line : memberLinesOf(description)) {
        for (int fewer = rowsIn(line).value_or(0); fewer > 0; --fewer) {
            values_[line.name].insert(std::to_string(fewer - 1) + " rows");
        }
        values_[line.name].insert(line.value);
        flags_[line.name].insert(line.flag);
    }
}

std::vector<std::string> Mixture::strangersIn(const std::string& description) const {
    std::vector<std::string> strangers;
    std::vector<std::string> lastRows;
    for (const MemberLine& line : memberLinesOf(description)) {
        const int rows = rowsIn(line).value_or(0);
        if (rows > 0) {
            lastRows.push_back(line.name + '[' + std::to_string(rows - 1) + "].");
        }
        const bool known = holds(values_, line.name, line.value) && holds(flags_, line.name, line.flag);
        if (!known && !startsWithAny(line.name, lastRows)) {
            strangers.push_back(line.text);
        }
    }
    return strangers;
}

}  // namespace lv::test
