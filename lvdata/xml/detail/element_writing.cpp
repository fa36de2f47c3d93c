#include <lvdata/xml/detail/element_writing.h>

#include <tinyxml2.h>

namespace lv::detail {

tinyxml2::XMLElement* appendElement(tinyxml2::XMLNode& parent, const char* name) {
    tinyxml2::XMLElement* const child = parent.GetDocument()->NewElement(name);
    parent.InsertEndChild(child);
    return child;
}

void appendText(tinyxml2::XMLElement& element, const std::string& text) {
    element.InsertEndChild(element.GetDocument()->NewText(text.c_str()));
}

void setAttribute(tinyxml2::XMLElement& element, const char* name, const std::string& value) {
    element.SetAttribute(name, value.c_str());
}

}  // namespace lv::detail
