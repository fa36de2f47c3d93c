#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/handle.h>
#include <lvdata/xml/detail/number_text.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

std::string textOrNothing(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

std::string textOf(void* handle) {
    const tinyxml2::XMLElement* const element = toElement(handle);
    return element == nullptr ? std::string() : textOrNothing(element->GetText());
}

std::string attributeOf(void* handle, const char* name) {
    const tinyxml2::XMLElement* const element = toElement(handle);
    return element == nullptr ? std::string() : textOrNothing(element->Attribute(name));
}

template <class Number>
bool convert(const std::string& text, Number& out) {
    if (!text.empty()) {
        out = parseNumber<Number>(text);
    }
    return !text.empty();
}

template <class Number>
bool convert(const std::string& text, std::vector<Number>& out, std::string_view separator) {
    if (!text.empty()) {
        parseNumbers(text, separator, out);
    }
    return !text.empty();
}

}  // namespace

void* findChild(void* parent, const char* name) {
    tinyxml2::XMLElement* const element = toElement(parent);
    return element == nullptr ? nullptr : toHandle(element->FirstChildElement(name));
}

void* findNext(void* element, const char* name) {
    return toHandle(toNode(element)->NextSiblingElement(name));
}

ChildFinder::ChildFinder(void* parent) : next_(parent) {}

void* ChildFinder::find(const char* name) {
    return findChild(next_, name);  // which stays the parent here
}

bool readText(void* element, std::string& out) {
    const tinyxml2::XMLElement* const found = toElement(element);
    if (found != nullptr && found->GetText() != nullptr) {
        out = textOf(element);
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
    const std::string text = textOf(element);
    if (!text.empty()) {
        out = text == "true" || text == "TRUE";
    }
    return !text.empty();
}

bool readText(void* element, std::vector<int>& out, std::string_view separator) {
    return convert(textOf(element), out, separator);
}

bool readText(void* element, std::vector<unsigned int>& out, std::string_view separator) {
    return convert(textOf(element), out, separator);
}

bool readAttribute(void* element, const char* name, std::string& out) {
    const tinyxml2::XMLElement* const found = toElement(element);
    const bool exists = found != nullptr && found->FindAttribute(name) != nullptr;
    if (exists) {
        out = attributeOf(element, name);
    }
    return exists;
}

bool readAttribute(void* element, const char* name, int& out) {
    return convert(attributeOf(element, name), out);
}

bool readAttribute(void* element, const char* name, unsigned int& out) {
    return convert(attributeOf(element, name), out);
}

}  // namespace lv::detail
