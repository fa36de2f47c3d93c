#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/handle.h>
#include <lvdata/xml/detail/number_text.h>
#include <lvdata/xml/detail/own_document.h>

#include <cstring>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

/// The element's text; empty when there is no element, no text, or an empty one.
std::string_view textOf(void* handle) {
    const tinyxml2::XMLElement* const element = toElement(handle);
    const char* const text = element == nullptr ? nullptr : element->GetText();
    return text == nullptr ? std::string_view() : std::string_view(text);
}

/// The same for an array: read where it lies in the document's source, if that is at hand.
std::string_view arrayTextOf(void* handle) {
    const tinyxml2::XMLElement* const element = toElement(handle);
    const SourceText* const source = element == nullptr ? nullptr : sourceInUse(*element);
    const std::string_view text = source == nullptr ? std::string_view() : source->plainTextOf(element->Value());
    return text.empty() ? textOf(handle) : text;
}

/// The attribute's text; null when there is no element or no such attribute.
const char* attributeOf(void* handle, const char* name) {
    const tinyxml2::XMLElement* const element = toElement(handle);
    return element == nullptr ? nullptr : element->Attribute(name);
}

template <class Number>
bool convert(std::string_view text, Number& out) {
    if (text.empty()) {
        return false;
    }
    out = parseNumber<Number>(text);
    return true;
}

template <class Number>
bool convert(std::string_view text, std::vector<Number>& out, std::string_view separator) {
    if (text.empty()) {
        return false;
    }
    parseNumbers(text, separator, out);
    return true;
}

template <class Number>
bool convertAttribute(void* handle, const char* name, Number& out) {
    const char* const text = attributeOf(handle, name);
    return text != nullptr && convert(text, out);
}

}  // namespace

void* findChild(void* parent, const char* name) {
    tinyxml2::XMLElement* const element = toElement(parent);
    return element == nullptr ? nullptr : toHandle(element->FirstChildElement(name));
}

void* findNext(void* element, const char* name) {
    return toHandle(toNode(element)->NextSiblingElement(name));
}

ChildFinder::ChildFinder(void* parent) {
    tinyxml2::XMLElement* const element = toElement(parent);
    next_ = element == nullptr ? nullptr : toHandle(element->FirstChildElement());
}

void* ChildFinder::find(const char* name) {
    tinyxml2::XMLNode* const next = toNode(next_);
    for (tinyxml2::XMLNode* child = next; child != nullptr; child = child->NextSiblingElement()) {
        if (std::strcmp(child->Value(), name) == 0) {
            if (child == next) {
                next_ = toHandle(child->NextSiblingElement());
            }
            return toHandle(child);
        }
    }
    return nullptr;
}

bool readText(void* element, std::string& out) {
    const tinyxml2::XMLElement* const found = toElement(element);
    const char* const text = found == nullptr ? nullptr : found->GetText();
    if (text != nullptr) {
        out = text;
    }
    return found != nullptr;
}

bool readText(void* element, int& out) {
    return convert(textOf(element), out);
}

bool readText(void* element, unsigned int& out) {
    return convert(textOf(element), out);
}

bool readText(void* element, bool& out) {
    const std::string_view text = textOf(element);
    if (!text.empty()) {
        out = text == "true" || text == "TRUE";
    }
    return !text.empty();
}

bool readText(void* element, std::vector<int>& out, std::string_view separator) {
    return convert(arrayTextOf(element), out, separator);
}

bool readText(void* element, std::vector<unsigned int>& out, std::string_view separator) {
    return convert(arrayTextOf(element), out, separator);
}

bool readAttribute(void* element, const char* name, std::string& out) {
    const char* const text = attributeOf(element, name);
    if (text != nullptr) {
        out = text;
    }
    return text != nullptr;
}

bool readAttribute(void* element, const char* name, int& out) {
    return convertAttribute(element, name, out);
}

bool readAttribute(void* element, const char* name, unsigned int& out) {
    return convertAttribute(element, name, out);
}

}  // namespace lv::detail
