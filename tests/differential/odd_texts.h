#pragma once

#include <string>
#include <vector>

// Unexpected content of documents.

namespace differential {

/// Number texts with signs, blanks, letters and too many digits.
[[nodiscard]] const std::vector<std::string>& oddNumbers();

/// Put into a text: entities, line ends, comments, sections, other elements.
[[nodiscard]] const std::vector<std::string>& oddInTexts();

/// Characters that are escaped in a text.
[[nodiscard]] const std::vector<std::string>& entities();

/// Before a text or instead of it.
[[nodiscard]] const std::vector<std::string>& blanks();

/// Put into a start tag, after its name or before its end.
[[nodiscard]] const std::vector<std::string>& oddInTags();

/// Put before the root element.
[[nodiscard]] const std::vector<std::string>& oddInFront();

}  // namespace differential
