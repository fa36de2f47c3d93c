#pragma once

#include <string_view>

namespace lv::analysis {

/// How the text of a number is read.
enum class NumberText {
    canonical,      ///< As the number; the text is in canonical form.
    otherSpelling,  ///< As the number, but in a different spelling: "+5", "05", " 5".
    empty,          ///< Not read: it has no character.
    noNumber,       ///< As 0, since it does not begin with a number.
    outOfRange,     ///< As the nearest limit.
    negative,       ///< As a large number: it is negative, but the number is unsigned.
    restIgnored,    ///< As the number that it begins with: "140.5" as 140.
};

/// How the text is read as an unsigned number of 32 bits, or a signed one.
[[nodiscard]] NumberText judgeNumber(std::string_view text, bool isSigned);

}  // namespace lv::analysis
