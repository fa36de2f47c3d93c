#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/detail/ChildFinder.h>

#include <cstring>

namespace lv::detail {

bool isNamed(const tinyxml2::XMLElement* element, const char* name) {
    return std::strcmp(pugixmlNode(element).name(), name) == 0;
}

std::vector<tinyxml2::XMLElement*> findChildren(tinyxml2::XMLElement* parent, const char* name) {
    std::vector<tinyxml2::XMLElement*> children;
    for (const pugi::xml_node child : pugixmlNode(parent).children(name)) {
        children.push_back(toElement(child));
    }
    return children;
}

ChildFinder::ChildFinder(tinyxml2::XMLElement* parent) : next_(toElement(pugixmlNode(parent).first_child())) {}

tinyxml2::XMLElement* ChildFinder::find(const char* name) {
    const pugi::xml_node next = pugixmlNode(next_);
    for (pugi::xml_node child = next; !child.empty(); child = child.next_sibling()) {
        if (std::strcmp(child.name(), name) == 0) {
            if (child == next) {
                next_ = toElement(child.next_sibling());
            }
            return toElement(child);
        }
    }
    return nullptr;
}

}  // namespace lv::detail
