#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/number_parsing.h>
#include <lvdata/xml/detail/parsed_array.h>

#include <cstring>

#include <tinyxml2.h>

// Texts are read where the XML library keeps them, beyond the ends of the names that it gives out.
// NOLINTBEGIN(*-pointer-arithmetic)

namespace lv::detail {
namespace {

/// Seen in 9.0.0 and 11.0.0; others may keep their texts in another way.
constexpr bool keepsTexts = TINYXML2_MAJOR_VERSION >= 9 && TINYXML2_MAJOR_VERSION <= 11;

/// The character after a text, which the XML library replaced by a NUL when it gave out the text.
const char* endOf(const char* text) {
    return text + std::strlen(text);
}

const tinyxml2::XMLAttribute* lastAttributeOf(const tinyxml2::XMLElement& element) {
    const tinyxml2::XMLAttribute* last = element.FirstAttribute();
    while (last != nullptr && last->Next() != nullptr) {
        last = last->Next();
    }
    return last;
}

/// What follows a start tag without attributes. If that begins with a digit or '-', it is the element's content,
/// because only white space, '/' and '>' can follow a name.
const char* afterName(const tinyxml2::XMLElement& element) {
    return endOf(element.Value()) + 1;
}

/// What follows a start tag whose last attribute it is; null in doubt. A value that held entities is shorter than it
/// was parsed, with its last characters left over after it. They could look like the rest of the tag, a text and an end
/// tag, but then the value, which ends in the same characters, holds a '<', too.
const char* afterValue(const tinyxml2::XMLAttribute& attribute) {
    const char* const value = attribute.Value();
    const char* const tagEnd = endOf(value) + 1;  // after the quotation mark
    return *tagEnd == '>' && std::strchr(value, '<') == nullptr ? tagEnd + 1 : nullptr;
}

/// The text where it was parsed, if the element begins with one; empty in doubt.
std::string_view parsedTextOf(const tinyxml2::XMLElement& element) {
    const tinyxml2::XMLAttribute* const attribute = lastAttributeOf(element);
    const char* const text = attribute == nullptr ? afterName(element) : afterValue(*attribute);
    const char* const end = text == nullptr ? nullptr : std::strchr(text, '<');
    return end == nullptr ? std::string_view() : std::string_view(text, static_cast<std::size_t>(end - text));
}

}  // namespace

bool keepsTextsWhereParsed() {
    return keepsTexts;
}

template <class Number>
bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<Number>& out) {
    if (element == nullptr) {
        return false;
    }
    const std::string_view text = keepsTexts ? parsedTextOf(*element) : std::string_view();
    const bool isPlain = !text.empty() && parsePlainNumbers(text, arraySeparator.front(), out);
    return isPlain || readArray(element, out, arraySeparator);
}

template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<int>& out);
template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out);

}  // namespace lv::detail

// NOLINTEND(*-pointer-arithmetic)
