#pragma once

#include <string>
#include <vector>

namespace lv::test {

enum class Flag { none, unset, set };

/// One line of what `describe` tells: "gamma.red.formula = 2200000", "redGain = 1000000 (set)", "hue = (unset)".
struct MemberLine {
    std::string text;   // the whole line
    std::string name;   // with those of the values that the member is part of
    std::string value;  // without the flag; empty for the flag of a value with members of its own
    Flag flag;          // none: the member is not optional
};

/// The lines of a description.
[[nodiscard]] std::vector<MemberLine> memberLinesOf(const std::string& description);

}  // namespace lv::test
