#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace differential {

/// A part of a document's text.
struct Span {
    std::size_t begin;
    std::size_t size;
};

/// What stands between a tag and the next one, empty parts included. Like the next function a plain look at the
/// brackets, made for documents that may be damaged already.
[[nodiscard]] std::vector<Span> textsOf(const std::string& document);

/// The start tags with their brackets.
[[nodiscard]] std::vector<Span> startTagsOf(const std::string& document);

/// The name in a start tag.
[[nodiscard]] Span nameIn(const std::string& document, Span startTag);

/// The element that begins with this start tag: up to the next end tag of its name, or the tag alone.
[[nodiscard]] Span elementOf(const std::string& document, Span startTag);

}  // namespace differential
