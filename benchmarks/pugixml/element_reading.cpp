#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/parsed_array.h>

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace lv::detail {
namespace {

bool convert(std::string_view text, std::string& out) {
    out = text;
    return true;
}

template <class Number>
bool convert(std::string_view text, Number& out) {
    return std::from_chars(text.data(), text.data() + text.size(), out).ec == std::errc();
}

bool convert(std::string_view text, bool& out) {
    if (!text.empty()) {
        out = text == "true" || text == "TRUE";
    }
    return !text.empty();
}

}  // namespace

template <class T>
bool readText(const tinyxml2::XMLElement* element, T& out) {
    return convert(pugixmlNode(element).child_value(), out);
}

template <>
bool readText(const tinyxml2::XMLElement* element, std::string& out) {
    const char* const text = pugixmlNode(element).child_value();
    if (*text != '\0') {
        out = text;
    }
    return element != nullptr;
}

template bool readText(const tinyxml2::XMLElement* element, int& out);
template bool readText(const tinyxml2::XMLElement* element, unsigned int& out);
template bool readText(const tinyxml2::XMLElement* element, bool& out);

template <class Number>
bool readArray(const tinyxml2::XMLElement* element, std::vector<Number>& out, std::string_view separator) {
    const std::string_view text = pugixmlNode(element).child_value();
    if (text.empty()) {
        return false;
    }
    const char* at = text.data();
    const char* const end = at + text.size();
    out.resize(static_cast<std::size_t>(std::count(at, end, separator.front())) + 1);
    for (Number& number : out) {
        at = std::from_chars(at, end, number).ptr;
        at += at != end ? 1 : 0;
    }
    return true;
}

template bool readArray(const tinyxml2::XMLElement* element, std::vector<int>& out, std::string_view separator);
template bool readArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out,
                        std::string_view separator);

template <class Number>
bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<Number>& out) {
    return readArray(element, out, arraySeparator);
}

template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<int>& out);
template bool readParsedArray(const tinyxml2::XMLElement* element, std::vector<unsigned int>& out);

template <class T>
bool readAttribute(const tinyxml2::XMLElement* element, const char* name, T& out) {
    const pugi::xml_attribute attribute = pugixmlNode(element).attribute(name);
    return !attribute.empty() && convert(attribute.value(), out);
}

template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, std::string& out);
template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, int& out);
template bool readAttribute(const tinyxml2::XMLElement* element, const char* name, unsigned int& out);

}  // namespace lv::detail
