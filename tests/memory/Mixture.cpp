#include "Mixture.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string_view>

namespace lv::test {
namespace {

/// A line of a description: "redGain = 1000000 (set)".
struct Line {
    std::string whole;
    std::string name;
    std::string value;
    std::string flag;
};

/// Takes `end` off the text; false when it does not end so.
bool removeEnd(std::string& text, std::string_view end) {
    const bool found = text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
    text.resize(found ? text.size() - end.size() : text.size());
    return found;
}

Line lineOf(const std::string& text) {
    const std::size_t equals = text.find(" = ");
    Line line = {text, text.substr(0, equals), text.substr(equals + 2), {}};
    for (const char* flag : {" (set)", " (unset)"}) {
        if (removeEnd(line.value, flag)) {
            line.flag = flag;
        }
    }
    return line;
}

std::vector<Line> linesOf(const std::string& description) {
    std::istringstream stream(description);
    std::vector<Line> lines;
    for (std::string text; std::getline(stream, text);) {
        lines.push_back(lineOf(text));
    }
    return lines;
}

/// How many rows a line like "objects = 3 rows" states.
std::optional<int> rowsIn(const Line& line) {
    std::string number = line.value;
    return removeEnd(number, " rows") ? std::optional(std::stoi(number)) : std::nullopt;
}

bool startsWithAny(const std::string& text, const std::vector<std::string>& beginnings) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&text](const std::string& beginning) { return text.rfind(beginning, 0) == 0; });
}

bool holds(const std::map<std::string, std::set<std::string>>& known, const std::string& name,
           const std::string& state) {
    const auto found = known.find(name);
    return found != known.end() && found->second.count(state) != 0;
}

}  // namespace

Mixture::Mixture(const std::string& before, const std::string& whole) {
    add(before);
    add(whole);
}

void Mixture::add(const std::string& description) {
    for (const Line& line : linesOf(description)) {
        for (int fewer = rowsIn(line).value_or(0); fewer > 0; --fewer) {
            values_[line.name].insert(' ' + std::to_string(fewer - 1) + " rows");
        }
        values_[line.name].insert(line.value);
        flags_[line.name].insert(line.flag);
    }
}

std::vector<std::string> Mixture::strangersIn(const std::string& description) const {
    std::vector<std::string> strangers;
    std::vector<std::string> lastRows;
    for (const Line& line : linesOf(description)) {
        const int rows = rowsIn(line).value_or(0);
        if (rows > 0) {
            lastRows.push_back(line.name + '[' + std::to_string(rows - 1) + "].");
        }
        const bool known = holds(values_, line.name, line.value) && holds(flags_, line.name, line.flag);
        if (!known && !startsWithAny(line.name, lastRows)) {
            strangers.push_back(line.whole);
        }
    }
    return strangers;
}

}  // namespace lv::test
