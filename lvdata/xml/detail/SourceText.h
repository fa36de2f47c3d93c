#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lv::detail {

/// The text that a document was parsed from, and where in it an element's own text lies.
///
/// The XML library resolves entities and line ends in a text when it hands it out, character by character; for a long
/// array of numbers that costs more than the conversion of the numbers. Since it keeps its names where they were
/// parsed, their distance tells where in the source an element stands, and the source holds the same characters.
///
/// Every answer is checked against the source, so a name that is kept elsewhere only leads to no answer.
class SourceText {
public:
    /// \param source    the text that was parsed; it must outlive this object
    /// \param rootName  the name of the document's first element, as the XML library hands it out
    SourceText(std::string_view source, const char* rootName);

    /// The text of an element that was parsed from this source and holds nothing but text that the
    /// XML library hands out as it stands. Empty whenever there is any doubt.
    [[nodiscard]] std::string_view plainTextOf(const char* elementName) const;

private:
    std::string_view source_;
    std::uintptr_t base_ = 0;  // the address that the first character of the source has for the XML library; 0: unknown
};

}  // namespace lv::detail
