#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/number_parsing.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

std::string textOrNothing(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

std::string textOf(const tinyxml2::XMLElement* element) {
    return element == nullptr ? std::string() : textOrNothing(element->GetText());
}

std::string attributeOf(const tinyxml2::XMLElement* element, const char* name) {
    return element == nullptr ? std::string() : textOrNothing(element->Attribute(name));
}

template <class Number>
bool convert(const std::string& text, Number& out) {
    if (!text.empty()) {
        out = parseNumber<Number>(text);
    }
    return !text.empty();
}

bool convert(const std::string& text, bool& out) {
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
    return convert(textOf(element), out);
}

template <>
bool readText(const tinyxml2::XMLElement* element, std::string& out) {
    if (element != nullptr && element->GetText() != nullptr) {
        out = textOf(element);
    }
    return element != nullptr;
}

template bool readText(const tinyxml2::XMLElement* element, int& out);
template bool readText(const tinyxml2::XMLElement* element, unsigned int& out);
template bool readText(const tinyxml2::XMLElement* element, bool& out);

template <class Number>
bool readArray(const tinyxml2::XMLElement* element, std::vector<Number>& out, std::string_view separator) {
    const std::string text = textOf(element);
    if (!text.empty()) {
        parseNumbers(text, separator, out);
    }
    return !text.empty();
}

template bool readArray(const tinyxml2::XMLElement* element, std::vector<int>& out, std::string_view separator);
template bool readArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out,
                        std::string_view separator);

template <class T>
bool readAttribute(const tinyxml2::XMLElement* element, const char* name, T& out) {
    return convert(attributeOf(element, name), out);
}

template <>
bool readAttribute(const tinyxml2::XMLElement* element, const char* name, std::string& out) {
    const bool exists = element != nullptr && element->FindAttribute(name) != nullptr;
    if (exists) {
        out = attributeOf(element, name);
    }
    return exists;
}

template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, int& out);
template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, unsigned int& out);

}  // namespace lv::detail
