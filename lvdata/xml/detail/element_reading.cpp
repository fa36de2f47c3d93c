#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/number_parsing.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

/// The element's text; null when there is no element or no text.
const char* textOf(const tinyxml2::XMLElement* element) {
    return element == nullptr ? nullptr : element->GetText();
}

/// Converts a text that is there. Whether that counts as found.
bool convert(std::string_view text, std::string& out) {
    out = text;
    return true;
}

template <class Number>
bool convert(std::string_view text, Number& out) {
    if (!text.empty()) {
        out = parseNumber<Number>(text);
    }
    return !text.empty();
}

bool convert(std::string_view text, bool& out) {
    if (!text.empty()) {
        out = text == "true" || text == "TRUE";
    }
    return !text.empty();
}

}  // namespace

int lineOf(const tinyxml2::XMLElement* element) {
    return element->GetLineNum();
}

template <class T>
bool readText(const tinyxml2::XMLElement* element, T& out) {
    const char* const text = textOf(element);
    return text != nullptr && convert(text, out);
}

/// A string is found wherever there is an element, with or without a text.
template <>
bool readText(const tinyxml2::XMLElement* element, std::string& out) {
    if (const char* const text = textOf(element)) {
        out = text;
    }
    return element != nullptr;
}

template bool readText(const tinyxml2::XMLElement* element, int& out);
template bool readText(const tinyxml2::XMLElement* element, unsigned int& out);
template bool readText(const tinyxml2::XMLElement* element, bool& out);

template <class Number>
bool readArray(const tinyxml2::XMLElement* element, std::vector<Number>& out, std::string_view separator) {
    const char* const text = textOf(element);
    const bool found = text != nullptr && *text != '\0';
    if (found) {
        parseNumbers(text, separator, out);
    }
    return found;
}

template bool readArray(const tinyxml2::XMLElement* element, std::vector<int>& out, std::string_view separator);
template bool readArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out,
                        std::string_view separator);

template <class T>
bool readAttribute(const tinyxml2::XMLElement* element, const char* name, T& out) {
    const char* const text = element == nullptr ? nullptr : element->Attribute(name);
    return text != nullptr && convert(text, out);
}

template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, std::string& out);
template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, int& out);
template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, unsigned int& out);

}  // namespace lv::detail
