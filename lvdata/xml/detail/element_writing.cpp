#include <lvdata/xml/detail/element_writing.h>
#include <lvdata/xml/detail/handle.h>
#include <lvdata/xml/detail/number_text.h>
#include <lvdata/xml/detail/own_document.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

void addText(void* handle, const char* text) {
    tinyxml2::XMLElement* const element = toElement(handle);
    if (element != nullptr) {
        appendText(*element, text);
    }
}

void* appendWithText(void* parent, const char* name, const char* text) {
    void* const child = appendChild(parent, name);
    addText(child, text);
    return child;
}

bool appendLeafText(void* parent, const char* name, const std::string& text) {
    return appendPiece(parent, name, text) || appendChild(parent, name, text) != nullptr;
}

const char* boolText(bool value) {
    return value ? "true" : "false";
}

void setAttributeText(void* handle, const char* name, const char* value) {
    tinyxml2::XMLElement* const element = toElement(handle);
    if (element != nullptr) {
        element->SetAttribute(name, value);
    }
}

}  // namespace

void* appendChild(void* parent, const char* name) {
    tinyxml2::XMLElement* const element = toElement(parent);
    return element == nullptr ? nullptr : toHandle(appendElement(*element, name));
}

void* appendChild(void* parent, const char* name, const std::string& text) {
    return appendWithText(parent, name, text.c_str());
}

void* appendChild(void* parent, const char* name, int value) {
    return appendWithText(parent, name, decimalText(value).c_str());
}

void* appendChild(void* parent, const char* name, unsigned int value) {
    return appendWithText(parent, name, decimalText(value).c_str());
}

void* appendChild(void* parent, const char* name, bool value) {
    return appendWithText(parent, name, boolText(value));
}

void* appendChild(void* parent, const char* name, const std::vector<int>& values, std::string_view separator) {
    return appendWithText(parent, name, joinNumbers(values, separator).c_str());
}

void* appendChild(void* parent, const char* name, const std::vector<unsigned int>& values, std::string_view separator) {
    return appendWithText(parent, name, joinNumbers(values, separator).c_str());
}

bool appendLeaf(void* parent, const char* name, const std::string& text) {
    return appendLeafText(parent, name, text);
}

bool appendLeaf(void* parent, const char* name, int value) {
    return appendLeafText(parent, name, decimalText(value));
}

bool appendLeaf(void* parent, const char* name, unsigned int value) {
    return appendLeafText(parent, name, decimalText(value));
}

bool appendLeaf(void* parent, const char* name, bool value) {
    return appendLeafText(parent, name, boolText(value));
}

bool appendLeaf(void* parent, const char* name, const std::vector<int>& values) {
    return appendLeafText(parent, name, joinNumbers(values, arraySeparator));
}

bool appendLeaf(void* parent, const char* name, const std::vector<unsigned int>& values) {
    return appendLeafText(parent, name, joinNumbers(values, arraySeparator));
}

void setText(void* element, unsigned int value) {
    addText(element, decimalText(value).c_str());
}

void setText(void* element, const std::vector<unsigned int>& values) {
    addText(element, joinNumbers(values, arraySeparator).c_str());
}

void setAttribute(void* element, const char* name, const std::string& value) {
    setAttributeText(element, name, value.c_str());
}

void setAttribute(void* element, const char* name, int value) {
    setAttributeText(element, name, decimalText(value).c_str());
}

void setAttribute(void* element, const char* name, unsigned int value) {
    setAttributeText(element, name, decimalText(value).c_str());
}

}  // namespace lv::detail
