#include <lvdata/xml/detail/ChildFinder.h>

#include <cstring>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

/// The node itself, or the first element among the siblings after it.
tinyxml2::XMLElement* elementFrom(tinyxml2::XMLNode* node) {
    while (node != nullptr) {
        if (tinyxml2::XMLElement* const element = node->ToElement()) {
            return element;
        }
        node = node->NextSibling();
    }
    return nullptr;
}

tinyxml2::XMLElement* firstChild(tinyxml2::XMLElement* parent) {
    return parent == nullptr ? nullptr : elementFrom(parent->FirstChild());
}

tinyxml2::XMLElement* next(tinyxml2::XMLElement* element) {
    return elementFrom(element->NextSibling());
}

/// The element itself, or the first of that name after it.
tinyxml2::XMLElement* namedFrom(tinyxml2::XMLElement* element, const char* name) {
    while (element != nullptr && !isNamed(element, name)) {
        element = next(element);
    }
    return element;
}

}  // namespace

bool isNamed(const tinyxml2::XMLElement* element, const char* name) {
    const char* const ownName = element == nullptr ? nullptr : element->Value();
    return ownName != nullptr && *ownName == *name && std::strcmp(ownName, name) == 0;
}

tinyxml2::XMLElement* findChild(tinyxml2::XMLElement* parent, const char* name) {
    return namedFrom(firstChild(parent), name);
}

std::vector<tinyxml2::XMLElement*> findChildren(tinyxml2::XMLElement* parent, const char* name) {
    std::vector<tinyxml2::XMLElement*> children;
    for (tinyxml2::XMLElement* child = findChild(parent, name); child != nullptr;
         child = namedFrom(next(child), name)) {
        children.push_back(child);
    }
    return children;
}

ChildFinder::ChildFinder(tinyxml2::XMLElement* parent) : next_(firstChild(parent)) {}

tinyxml2::XMLElement* ChildFinder::find(const char* name) {
    tinyxml2::XMLElement* const found = namedFrom(next_, name);
    if (found != nullptr && found == next_) {
        next_ = next(found);
    }
    return found;
}

}  // namespace lv::detail
