#include <lvdata/xml/detail/ChildFinder.h>

#include <string>

#include <tinyxml2.h>

namespace lv::detail {

bool isNamed(const tinyxml2::XMLElement* element, const char* name) {
    return element != nullptr && std::string(element->Value()) == name;
}

tinyxml2::XMLElement* findChild(tinyxml2::XMLElement* parent, const char* name) {
    return parent == nullptr ? nullptr : parent->FirstChildElement(name);
}

std::vector<tinyxml2::XMLElement*> findChildren(tinyxml2::XMLElement* parent, const char* name) {
    std::vector<tinyxml2::XMLElement*> children;
    for (auto* child = findChild(parent, name); child != nullptr; child = child->NextSiblingElement(name)) {
        children.push_back(child);
    }
    return children;
}

ChildFinder::ChildFinder(tinyxml2::XMLElement* parent) : next_(parent) {}

tinyxml2::XMLElement* ChildFinder::find(const char* name) {
    return findChild(next_, name);  // which stays the parent here
}

}  // namespace lv::detail
