#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// What a document may have before it is refused. Calibration data stays far below all of it; what goes beyond would
/// take the XML library minutes, with the square of the attributes or references, or make a record of gigabytes.
struct Limits {
    std::size_t bytes = 64UL * 1024 * 1024;
    std::size_t elements = 250'000;
    std::size_t nodes = 1'000'000;       // elements, their attributes, texts, comments, and other markup
    std::size_t attributes = 100;        // in one tag
    std::size_t brokenReferences = 100;  // in one text or attribute: "&#" without a ";" in front of the next "&#"
};

struct Excess {
    std::size_t position;  // in the text
    std::string reason;
};

/// Where a document goes beyond one of the limits but that of bytes for the first time. One pass over the text, which
/// sees the same tags and texts as the XML library does, up to where that refuses the document.
[[nodiscard]] std::optional<Excess> findExcess(std::string_view text, const Limits& limits);

/// The reason that names a limit and the option that changes it: "more than 100 attributes in one tag, ...".
[[nodiscard]] std::string excessReason(std::size_t limit, const std::string& things, const std::string& option);

}  // namespace tool
